#include "companion/exchange/ExchangeConfiguration.h"

#include <algorithm>

#include "companion/exchange/ServiceRecords.h"

ExchangeConfiguration standardExchangeConfiguration(const QString& clientId, const QString& redirectUri) {
  ExchangeConfiguration configuration;
  configuration.services = &lookUpServices;
  configuration.onlineServices = {
      {.hostSuffixes = {QStringLiteral("outlook.com"), QStringLiteral("office365.com"),
                        QStringLiteral("office.com")},
       .autodiscover =
           QUrl(QStringLiteral("https://autodiscover-s.outlook.com/autodiscover/autodiscover.xml")),
       .authority = QStringLiteral("https://login.microsoftonline.com/common"),
       .resource = QStringLiteral("https://outlook.office365.com"),
       .clientId = clientId,
       .redirectUri = redirectUri}};
  return configuration;
}

bool isWithinDomain(const QString& host, const QString& domain) {
  if (host.isEmpty() || domain.isEmpty()) return false;
  return host.compare(domain, Qt::CaseInsensitive) == 0 ||
         host.endsWith(QLatin1Char('.') + domain, Qt::CaseInsensitive);
}

std::optional<OnlineService> onlineServiceOf(const QList<OnlineService>& services, const QString& host) {
  for (const OnlineService& service : services) {
    const bool isOurs = std::any_of(service.hostSuffixes.begin(), service.hostSuffixes.end(),
                                    [&host](const QString& suffix) { return isWithinDomain(host, suffix); });
    if (isOurs) return service;
  }
  return {};
}
