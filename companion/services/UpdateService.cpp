#include "companion/services/UpdateService.h"

#include <QCoreApplication>
#include <chrono>
#include <utility>

#include "companion/network/WebAddress.h"
#include "companion/runtime/PluginHost.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"

namespace {

using namespace std::chrono_literals;

QUrl manifestAddress(const Dictionary& content) {
  const QUrl file(QStringLiteral("/companion/updates.json"));
  const QUrl downloads(textValue(content, QRT_LoginResult_cdnUrl), QUrl::StrictMode);
  if (isSafeAddress(downloads)) return downloads.resolved(file);
  return siteAddress(textValue(content, QRT_LoginResult_site)).resolved(file);
}

void trigger(PluginHost& host, KZCommand command) {
  host.trigger(command, Dictionary{{TelemetryKey_ActionFrom, TelemetryValue_ActionFrom_APP}});
}

}  // namespace

UpdateService::UpdateService(PluginHost* host, ServiceNetwork* network, const QString& folder)
    : m_host(host), m_network(network), m_folder(folder) {
  m_day.setInterval(24h);
  connect(&m_day, &QTimer::timeout, this,
          [this] { trigger(*m_host, KZCommand::KZCmdCheckForUpdatesAutomatically); });
  host->handle(KZCommand::KZCmdCheckForUpdates, this,
               [this](const Content& content) { look(Check::Asked, content.value_or(Dictionary())); });
  host->handle(KZCommand::KZCmdCheckForUpdatesAutomatically, this, [this](const Content& content) {
    if (m_check == Check::None) look(Check::Quiet, content.value_or(Dictionary()));
  });
}

void UpdateService::check() {
  if (KZUtility::sharedInstance().isCheckForUpdatesInProgress()) {
    return Q_EMIT noticed(
        QStringLiteral("A check for updates is already running. Wait for it, or cancel it."));
  }
  trigger(*m_host, KZCommand::KZCmdCheckForUpdates);
  if (m_check == Check::Asked) return;
  // Without a site the plug-in asks for nothing and leaves its flag to its host.
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  Q_EMIT noticed(
      QStringLiteral("No site is known that could have updates. Choose one in Preferences, Account."));
}

void UpdateService::checkQuietly() {
  m_day.start();
  trigger(*m_host, KZCommand::KZCmdCheckForUpdatesAutomatically);
}

void UpdateService::look(Check check, const Dictionary& content) {
  m_check = check;
  m_look = m_network->fetch();
  m_look->start({.address = manifestAddress(content)},
                [this](const WebAnswer& answer) { readManifest(answer); });
  if (check == Check::Asked) Q_EMIT started();
}

void UpdateService::readManifest(const WebAnswer& answer) {
  if (!answer.failure.isEmpty()) return fail(answer.failure);
  const auto manifest = readUpdateManifest(answer.address, answer.body);
  if (!manifest) return fail(messageOf(WebTrouble::BadAnswer, answer.address.host()));
  const QString current = QCoreApplication::applicationVersion();
  if (manifest->version.normalized() <= readVersion(current).value_or(QVersionNumber()).normalized()) {
    return succeed(QStringLiteral("Version %1 is the newest one.").arg(current));
  }
  if (m_check == Check::Asked) return download(*manifest);
  const QString text = QStringLiteral("Version %1 is there.").arg(manifest->version.toString());
  end();
  Q_EMIT offered(text);
}

void UpdateService::download(const UpdateManifest& manifest) {
  m_download = std::make_unique<UpdateDownload>(m_network->fetch(), m_folder, manifest);
  connect(m_download.get(), &UpdateDownload::progressed, this, &UpdateService::progressed);
  connect(m_download.get(), &UpdateDownload::failed, this, &UpdateService::fail);
  connect(m_download.get(), &UpdateDownload::finished, this,
          [this, version = manifest.version.toString()](const QString& path) {
            succeed(QStringLiteral("Version %1 lies in %2. It is not installed by itself: open it with your "
                                   "package manager.")
                        .arg(version, path));
          });
  m_download->start();
}

void UpdateService::cancel() {
  if (m_check == Check::Asked)
    succeed(QStringLiteral("The update was not fetched. Check again when you want it."));
}

void UpdateService::abandon() {
  // What was offered was the other site's, too.
  if (m_check == Check::None) return Q_EMIT ended();
  fail(QStringLiteral("The site has changed meanwhile. Check for updates again."));
}

void UpdateService::succeed(const QString& text) {
  const bool isAsked = m_check == Check::Asked;
  end();
  if (!isAsked) return;
  m_host->notify(KZNotify::KZNotifyCheckForUpdatesDone, Dictionary{{kKZResult, kKZSuccess}});
  // The plug-in clears it after a failure only.
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  Q_EMIT noticed(text);
}

void UpdateService::fail(const QString& reason) {
  const bool isAsked = m_check == Check::Asked;
  end();
  // A quiet check keeps quiet.
  if (!isAsked) return;
  m_host->notify(
      KZNotify::KZNotifyCheckForUpdatesDone,
      Dictionary{{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, reason}}}});
}

void UpdateService::end() {
  m_check = Check::None;
  m_look.reset();
  if (m_download) {
    m_download->stop();
    m_download.release()->deleteLater();
  }
  Q_EMIT ended();
}
