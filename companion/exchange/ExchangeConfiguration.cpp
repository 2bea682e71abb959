#include "companion/exchange/ExchangeConfiguration.h"

#include <algorithm>

#include "companion/network/WebAddress.h"

std::optional<OnlineService> ExchangeConfiguration::onlineServiceOf(const QString& host) const {
  for (const OnlineService& service : onlineServices) {
    const bool isOwner = std::any_of(service.hostSuffixes.begin(), service.hostSuffixes.end(),
                                     [&host](const QString& suffix) { return isWithinDomain(host, suffix); });
    if (isOwner) return service;
  }
  return {};
}

ExchangeConfiguration productionExchange(const QString& clientId, const QString& redirectUri) {
  return {.onlineServices = {{.hostSuffixes = {QStringLiteral("outlook.com"), QStringLiteral("office365.com"),
                                               QStringLiteral("office.com")},
                              .autodiscover = QUrl(QStringLiteral(
                                  "https://autodiscover-s.outlook.com/autodiscover/autodiscover.xml")),
                              .authority = QStringLiteral("https://login.microsoftonline.com/common"),
                              .resource = QStringLiteral("https://outlook.office365.com"),
                              .clientId = clientId,
                              .redirectUri = redirectUri}},
          .services = &lookUpServices};
}
