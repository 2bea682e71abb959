#include "companion/runtime/PluginHost.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMutexLocker>
#include <QStringList>
#include <QThread>
#include <utility>

#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZWorkspace.h"

namespace {

// Which plug-in of the host an event belongs to; this host has one.
constexpr quint32 kPreferencePluginIndex = 1;

const QString kCredentialRequest = QStringLiteral("HTTPAuthenticationRequired");
const QString kCredentialResponse = QStringLiteral("HTTPAuthenticationDatasource");

}  // namespace

PluginHost::PluginHost(Opener opener) {
  observeHostLibrary(std::move(opener));
}

PluginHost::~PluginHost() {
  shutDown();
  KZKeyChainHandle::sharedInstance().finish();
  m_requests.reset();
  m_requestEnds.reset();
  m_responses.reset();
  KZWorkspace::sharedWorkspace().setOpener({});
  KZWarningWindowController::setObserver({});
  setKZTraceSink({});
}

void PluginHost::observeHostLibrary(Opener opener) {
  auto& center = KZNotificationCenter::defaultCenter();
  m_requests = center.addObserver(kCredentialRequest, [this](const KZNotification& request) {
    report(CredentialRequest{request.name, request.userInfo});
  });
  m_responses = center.addObserver(kCredentialResponse, [this](const KZNotification& response) {
    report(CredentialResponse{response.name, response.userInfo, response.object});
  });
  KZWorkspace::sharedWorkspace().setOpener([this, opener = std::move(opener)](const QUrl& url) {
    report(AddressRequest{url.toString(QUrl::FullyEncoded)});
    return opener(url);
  });
  KZWarningWindowController::setObserver([this](const QString& title, const QString& message) {
    report(WarningShown{title, message});
  });
  setKZTraceSink([this](const KZTraceRecord& record) { report(record); });
  connect(&KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::valueChanged, this,
          [this](const QString& key, const QVariant& before, const QVariant& after) {
            report(StoreChange{key, before, after});
          });
  const KZKeyChainHandle& keychain = KZKeyChainHandle::sharedInstance();
  const auto reportKeychain = [this](KeychainChange::Kind kind) {
    return [this, kind](const QString& account) { report(KeychainChange{account, kind}); };
  };
  connect(&keychain, &KZKeyChainHandle::itemWritten, this, reportKeychain(KeychainChange::Kind::Written));
  connect(&keychain, &KZKeyChainHandle::itemRemoved, this, reportKeychain(KeychainChange::Kind::Removed));
}

bool PluginHost::load(const QString& path) {
  const PluginLoad event = {path};
  report(event);
  m_loader.setFileName(QFileInfo(path).absoluteFilePath());
  // Every symbol now: a plug-in of another version is refused here and not in the middle of a click.
  m_loader.setLoadHints(m_loader.loadHints() | QLibrary::ResolveAllSymbolsHint);
  QObject* root = m_loader.instance();
  m_factory = qobject_cast<KZPluginFactory*>(root);
  if (m_factory) {
    m_tokenLookup = qobject_cast<KZTokenLookup*>(root);
    m_core = m_factory->core();
    m_delegateNameIdx = kPreferencePluginIndex;
    m_core->setDelegate(this);
    // Observers of the center run in the order of registration: the plug-in's is before this one.
    m_requestEnds = KZNotificationCenter::defaultCenter().addObserver(
        kCredentialRequest, [this](const KZNotification& request) {
          if (QThread::currentThread() != thread()) return;
          report(CredentialRequest{request.name, request.userInfo}, Phase::End);
        });
  } else if (root) {
    m_errorText = QStringLiteral("%1 is a plug-in, but not of this host").arg(path);
  } else {
    m_errorText = QStringLiteral("%1 cannot be loaded: %2").arg(path, m_loader.errorString());
  }
  report(event, Phase::End);
  return m_factory != nullptr;
}

void PluginHost::shutDown() {
  if (!m_core) return;
  m_core->setDelegate(nullptr);
  m_core = nullptr;
  m_tokenLookup = nullptr;
  m_factory->shutDown();
}

PluginHost::Token PluginHost::addObserver(Observer observer) {
  auto token = std::make_shared<const Observer>(std::move(observer));
  const QMutexLocker lock(&m_mutex);
  std::erase_if(m_observers, [](const auto& known) { return known.expired(); });
  m_observers.push_back(token);
  return token;
}

void PluginHost::handle(KZCommand command, const QObject* context, CommandHandler handler) {
  std::erase_if(m_handlers, [](const RegisteredHandler& known) { return known.context.isNull(); });
  m_handlers.push_back({command, context, std::move(handler)});
}

void PluginHost::trigger(KZCommand command, const Content& content) {
  const CommandToPlugin event = {command, content};
  report(event);
  if (m_core) m_core->onHandleOtherPluginsTriggerCommand(static_cast<quint64>(command), content);
  report(event, Phase::End);
}

void PluginHost::notify(KZNotify index, const Content& content) {
  const NotificationToPlugin event = {index, content};
  report(event);
  if (m_core) {
    m_core->onHandleServicesNotification(
        KZEventIdentify::monitorwith(kPreferencePluginIndex, static_cast<quint64>(index)), content);
  }
  report(event, Phase::End);
}

void PluginHost::setPersonalRoom(const QString& joinUrl, const QString& sipUrl) {
  const PersonalRoomChange event = {joinUrl, sipUrl};
  report(event);
  if (m_core) m_core->setPMRJoinUrl(joinUrl, sipUrl);
  report(event, Phase::End);
}

quint64 PluginHost::sendPluginCommand(const KZEventIdentify& event, const Content& content) {
  const CommandToHost sent = {static_cast<KZCommand>(event.m_componentEventIndex), content};
  report(sent);
  // A handler may register others, or destroy the context of a later one.
  const std::vector<RegisteredHandler> handlers = m_handlers;
  for (const RegisteredHandler& registered : handlers) {
    if (registered.command == sent.command && registered.context) registered.handler(content);
  }
  report(sent, Phase::End);
  return 0;
}

void PluginHost::report(const PluginEvent& event, Phase phase) {
  std::vector<Token> observers;
  {
    const QMutexLocker lock(&m_mutex);
    for (const auto& known : m_observers) {
      if (auto token = known.lock()) observers.push_back(std::move(token));
    }
  }
  for (const Token& observer : observers) (*observer)(event, phase);
}

QString defaultPluginPath() {
  const QDir programs(QCoreApplication::applicationDirPath());
  const QStringList places = {QStringLiteral("../lib/KZPreference.so"),
                              QStringLiteral("../lib/brenn-mivra/KZPreference.so")};
  for (const QString& place : places) {
    const QString path = QDir::cleanPath(programs.filePath(place));
    if (QFileInfo::exists(path)) return path;
  }
  return QDir::cleanPath(programs.filePath(places.first()));
}
