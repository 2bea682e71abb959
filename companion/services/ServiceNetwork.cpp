#include "companion/services/ServiceNetwork.h"

#include <utility>

#include "companion/network/SandboxEndpoints.h"
#include "companion/network/WebAddress.h"

ServiceNetwork::ServiceNetwork(NetworkReach reach, NetworkConfiguration configuration)
    : m_reach(reach),
      m_configuration(std::move(configuration)),
      m_missing(QStringLiteral("The sandbox is still starting. Try again in a moment.")) {}

void ServiceNetwork::useSandbox(const QJsonObject& description) {
  m_sandbox = description;
  Q_EMIT changed();
}

void ServiceNetwork::loseSandbox() {
  m_sandbox = {};
  m_missing = QStringLiteral("The sandbox is not running. Start the companion again.");
  Q_EMIT changed();
}

QString ServiceNetwork::refusalOf(const QUrl& address) const {
  if (m_reach == NetworkReach::Network) return {};
  if (m_sandbox.isEmpty()) return m_missing;
  const QString domain = m_sandbox.value(QLatin1String("domain")).toString();
  if (isWithinDomain(address.host(), domain)) return {};
  return QStringLiteral(
             "%1 is outside the sandbox and was not asked. Choose the site meetings.%2 in Preferences, or "
             "start the companion with --network.")
      .arg(address.host(), domain);
}

std::unique_ptr<WebFetch> ServiceNetwork::fetch() const {
  NetworkConfiguration configuration = m_configuration;
  configuration.endpoint = sandboxEndpoints(m_sandbox, std::move(configuration.endpoint));
  return std::make_unique<WebFetch>(std::move(configuration),
                                    [this](const QUrl& address) { return refusalOf(address); });
}

QUrl siteAddress(const QString& site) {
  QUrl address(QStringLiteral("https://%1/").arg(site), QUrl::StrictMode);
  const bool isSite = address.path() == QLatin1String("/") && !address.hasQuery() && !address.hasFragment();
  if (!isSite || !isSafeAddress(address)) return {};
  if (isLoopback(address)) address.setScheme(QStringLiteral("http"));
  return address;
}
