#include "companion/exchange/SandboxExchange.h"

#include <QJsonArray>
#include <utility>

#include "companion/network/SandboxEndpoints.h"

namespace {

quint16 portAt(const QJsonObject& object, const char* key) {
  return static_cast<quint16>(object.value(QLatin1String(key)).toInt());
}

QString textAt(const QJsonObject& object, const char* key) {
  return object.value(QLatin1String(key)).toString();
}

OnlineService onlineServiceFrom(const QJsonObject& object) {
  OnlineService service{.hostSuffixes = {},
                        .autodiscover = QUrl(textAt(object, "autodiscover")),
                        .authority = textAt(object, "authority"),
                        .resource = textAt(object, "resource"),
                        .clientId = textAt(object, "clientId"),
                        .redirectUri = textAt(object, "redirectUri")};
  for (const QJsonValue& suffix : object.value(QLatin1String("hostSuffixes")).toArray()) {
    service.hostSuffixes.append(suffix.toString());
  }
  return service;
}

QList<ServiceRecord> recordsFrom(const QJsonArray& array) {
  QList<ServiceRecord> records;
  for (const QJsonValue& value : array) {
    const QJsonObject object = value.toObject();
    records.append({textAt(object, "target"), portAt(object, "port"), portAt(object, "priority"),
                    portAt(object, "weight")});
  }
  return records;
}

ServiceLookup serviceLookup(const QJsonObject& description, ServiceLookup others) {
  const QString domain = QLatin1Char('.') + textAt(description, "domain");
  const QJsonObject services = description.value(QLatin1String("services")).toObject();
  return [domain, services, others = std::move(others)](const QString& name, QObject* asker,
                                                        const ServicesFound& found) {
    if (name.endsWith(domain)) return found(recordsFrom(services.value(name).toArray()));
    return others ? others(name, asker, found) : found({});
  };
}

}  // namespace

ExchangeConfiguration withSandbox(ExchangeConfiguration configuration, const QJsonObject& description) {
  if (textAt(description, "domain").isEmpty()) return configuration;
  for (const QJsonValue& online : description.value(QLatin1String("online")).toArray()) {
    configuration.onlineServices.append(onlineServiceFrom(online.toObject()));
  }
  configuration.network.endpoint = sandboxEndpoints(description, std::move(configuration.network.endpoint));
  configuration.services = serviceLookup(description, std::move(configuration.services));
  return configuration;
}

QList<SandboxAccount> sandboxAccounts(const QJsonObject& description) {
  QList<SandboxAccount> accounts;
  for (const QJsonValue& value : description.value(QLatin1String("accounts")).toArray()) {
    const QJsonObject account = value.toObject();
    accounts.append({textAt(account, "email"), textAt(account, "username"), textAt(account, "password"),
                     textAt(account, "meaning")});
  }
  return accounts;
}
