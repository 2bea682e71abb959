#include "companion/exchange/StandardExchange.h"

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
