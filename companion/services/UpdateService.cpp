#include "companion/services/UpdateService.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <chrono>
#include <utility>

#include "companion/network/WebAddress.h"
#include "companion/runtime/PluginHost.h"
#include "companion/texts/CompanionText.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZUtility.h"

namespace {

using namespace std::chrono_literals;

QUrl manifestAddress(const Dictionary& content) {
  const QUrl file(QStringLiteral("/companion/updates.json"));
  const QUrl downloads(textValue(content, QRT_LoginResult_cdnUrl), QUrl::StrictMode);
  if (isSafeAddress(downloads)) return downloads.resolved(file);
  return siteAddress(textValue(content, QRT_LoginResult_site)).resolved(file);
}

// Dotted numbers alone; null for any other text.
QVersionNumber readVersion(const QString& text) {
  static const QRegularExpression dotted(QStringLiteral("\\A[0-9]{1,8}(\\.[0-9]{1,8}){0,5}\\z"));
  return dotted.match(text).hasMatch() ? QVersionNumber::fromString(text) : QVersionNumber();
}

void trigger(PluginHost& host, KZCommand command) {
  host.trigger(command, Dictionary{{TelemetryKey_ActionFrom, TelemetryValue_ActionFrom_APP}});
}

}  // namespace

std::optional<UpdateManifest> readUpdateManifest(const QUrl& address, const QByteArray& json) {
  const Dictionary manifest = KZUtility::JSONValueFromString(QString::fromUtf8(json)).toMap();
  const QVersionNumber version = readVersion(textValue(manifest, QStringLiteral("version")));
  if (version.isNull()) return {};
  const QString page = textValue(manifest, QStringLiteral("page"));
  const QUrl pageAddress = page.isEmpty() ? QUrl() : address.resolved(QUrl(page, QUrl::StrictMode));
  const bool isOwn = isOwnPage(pageAddress, address.host());
  return UpdateManifest{.version = version, .page = isOwn ? pageAddress : QUrl()};
}

UpdateService::UpdateService(PluginHost* host, ServiceNetwork* network) : m_host(host), m_network(network) {
  m_daily.setInterval(24h);
  connect(&m_daily, &QTimer::timeout, this,
          [this] { trigger(*m_host, KZCommand::KZCmdCheckForUpdatesAutomatically); });
  host->handle(KZCommand::KZCmdCheckForUpdates, this,
               [this](const Content& content) { start(Check::Asked, content.value_or(Dictionary())); });
  host->handle(KZCommand::KZCmdCheckForUpdatesAutomatically, this, [this](const Content& content) {
    if (m_check == Check::None) start(Check::Quiet, content.value_or(Dictionary()));
  });
}

void UpdateService::check() {
  if (KZUtility::sharedInstance().isCheckForUpdatesInProgress()) {
    return Q_EMIT message(companionText("A check for updates is already running."));
  }
  trigger(*m_host, KZCommand::KZCmdCheckForUpdates);
  if (m_check == Check::Asked) return;
  // Without a site the plug-in sends no command, and the host must clear its flag.
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  Q_EMIT message(
      companionText("No site is known that could have updates. Choose one in Preferences, Account."));
}

void UpdateService::checkQuietly() {
  m_daily.start();
  trigger(*m_host, KZCommand::KZCmdCheckForUpdatesAutomatically);
}

void UpdateService::start(Check check, const Dictionary& content) {
  m_check = check;
  if (check == Check::Asked) Q_EMIT message(companionText("Checking for updates."));
  m_fetch =
      m_network->fetch(manifestAddress(content), [this](const HttpResponse& response) { read(response); });
}

void UpdateService::read(const HttpResponse& response) {
  if (response.failure) return fail(response.failure);
  const auto manifest = readUpdateManifest(response.address, response.body);
  if (!manifest) return fail({.kind = FailureKind::BadResponse, .host = response.address.host()});
  const QVersionNumber current = readVersion(QCoreApplication::applicationVersion());
  const bool isNewer = manifest->version.normalized() > current.normalized();
  setOffer(isNewer ? manifest : std::nullopt);
  const bool isAsked = std::exchange(m_check, Check::None) == Check::Asked;
  if (isAsked) {
    m_host->notify(KZNotify::KZNotifyCheckForUpdatesDone, Dictionary{{kKZResult, kKZSuccess}});
    // The plug-in clears it after a failure only.
    KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  }
  if (isNewer)
    return Q_EMIT message(companionText("Version %1 is available.").arg(manifest->version.toString()));
  if (isAsked) Q_EMIT message(companionText("You have the newest version."));
}

void UpdateService::setOffer(const std::optional<UpdateManifest>& manifest) {
  m_offer = manifest;
  Q_EMIT offerChanged();
}

QString UpdateService::offeredVersion() const {
  return m_offer && !m_offer->page.isEmpty() ? m_offer->version.toString() : QString();
}

void UpdateService::openPage() {
  const QString failure = m_offer ? openInBrowser(m_offer->page) : QString();
  if (!failure.isEmpty()) Q_EMIT message(failure);
}

void UpdateService::abandon() {
  m_fetch.reset();
  setOffer({});
  fail({.kind = FailureKind::Explained,
        .detail = companionText("The site has changed meanwhile. Check for updates again.")});
}

void UpdateService::fail(const NetworkFailure& failure) {
  // A quiet check reports no failure.
  if (std::exchange(m_check, Check::None) != Check::Asked) return;
  m_host->notify(KZNotify::KZNotifyCheckForUpdatesDone, failure.result());
}
