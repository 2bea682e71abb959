#include "tests/companion/fakeplugin/FakePlugin.h"

#include <QThread>
#include <QTimer>
#include <QUrl>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZWorkspace.h"

namespace {

class FakeManager final : public KZPluginMgr {
 public:
  explicit FakeManager(FakeCore* core) : KZPluginMgr(core), m_core(core) {}

  quint64 onHandleOtherPluginsTriggerCommand(quint64 command, const Content& content) override {
    m_core->handle(command, content);
    return 0;
  }
  quint64 onHandleServicesNotification(const KZEventIdentify&, const Content&) override { return 0; }

 private:
  FakeCore* m_core;
};

}  // namespace

FakeCore::FakeCore() {
  m_pluginMgr = std::make_unique<FakeManager>(this);
  m_challenges = KZNotificationCenter::defaultCenter().addObserver(
      QStringLiteral("HTTPAuthenticationRequired"),
      [this](const KZNotification& challenge) { answerChallenge(challenge); });
}

FakeCore::~FakeCore() = default;

quint64 FakeCore::sendPluginCommand(quint64 command, const Content& content) {
  if (!m_delegate) return 0;
  return m_delegate->sendPluginCommand(KZEventIdentify::monitorwith(m_delegate->m_delegateNameIdx, command),
                                       content);
}

quint64 FakeCore::onHandleServicesNotification(const KZEventIdentify& event, const Content& content) {
  return sendPluginCommand(
      13, Dictionary{{"index", event.m_componentEventIndex}, {"hasContent", content.has_value()}});
}

void FakeCore::setPMRJoinUrl(const QString& joinUrl, const QString& sipUrl) {
  if (!joinUrl.isNull()) m_joinUrl = joinUrl;
  if (!sipUrl.isNull()) m_sipUrl = sipUrl;
}

void FakeCore::handle(quint64 command, const Content& content) {
  switch (command) {
    case 2:
      return show();
    case 3:
      return m_controller.reset();
    case 8: {
      KZWarningWindowController(this).showWithTitle(QStringLiteral("Title"), QStringLiteral("Message"));
      return;
    }
    case 9:
      return MVRNSWarningFuncTraceIMPL("Fake", Q_FUNC_INFO, "content:%@", content);
    case 10:
      KZWorkspace::sharedWorkspace().openURL(QUrl(QStringLiteral("https://example.com/a%20b")));
      return;
    case 20: {
      const QString given = textValue(content.value_or(Dictionary()), kproximityCommand);
      sendPluginCommand(19, Dictionary{{"same", given.constData() == kstartDetectVD.constData()}});
      return;
    }
    case 28:
      QTimer::singleShot(0, &m_mainThread, [this] { sendPluginCommand(29, {}); });
      return;
    default:
      sendPluginCommand(command, content);
  }
}

void FakeCore::show() {
  if (!m_controller) {
    m_controller = std::make_unique<FakeWindowController>(
        [this](quint64 command, const Content& content) { sendPluginCommand(command, content); });
  }
  m_controller->showWindow();
}

void FakeCore::answerChallenge(const KZNotification& challenge) {
  const auto answer = [&challenge] {
    Dictionary userInfo = challenge.userInfo;
    userInfo.insert("answered", true);
    KZNotificationCenter::defaultCenter().post(
        {QStringLiteral("HTTPAuthenticationDatasource"), nullptr, userInfo});
  };
  const bool isOnMainThread = QThread::currentThread() == m_mainThread.thread();
  QMetaObject::invokeMethod(&m_mainThread, answer,
                            isOnMainThread ? Qt::DirectConnection : Qt::BlockingQueuedConnection);
}

KZPluginCoreMgr* FakePlugin::core() {
  if (!m_core) m_core = std::make_unique<FakeCore>();
  return m_core.get();
}

Dictionary FakePlugin::getAccessTokenByEmail(const QString& email, const QString& username) {
  if (email.isNull() && username.isNull()) return {};
  return {{"email", email}, {"hasUsername", !username.isNull()}};
}
