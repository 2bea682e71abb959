#include "companion/exchange/SandboxDescription.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <utility>

#include "companion/network/WebAddress.h"

namespace {

quint16 numberAt(const QJsonObject& object, const char* key) {
  return static_cast<quint16>(object.value(QLatin1String(key)).toInt());
}

QString textAt(const QJsonObject& object, const char* key) {
  return object.value(QLatin1String(key)).toString();
}

QJsonArray listAt(const QJsonObject& object, const char* key) {
  return object.value(QLatin1String(key)).toArray();
}

QStringList textsAt(const QJsonObject& object, const char* key) {
  QStringList texts;
  for (const QJsonValue& text : listAt(object, key)) texts.append(text.toString());
  return texts;
}

QHash<QString, QList<ServiceRecord>> recordsFrom(const QJsonObject& object) {
  QHash<QString, QList<ServiceRecord>> records;
  for (auto name = object.begin(); name != object.end(); ++name) {
    for (const QJsonValue& value : name.value().toArray()) {
      const QJsonObject record = value.toObject();
      records[name.key()].append({textAt(record, "target"), numberAt(record, "port"),
                                  numberAt(record, "priority"), numberAt(record, "weight")});
    }
  }
  return records;
}

}  // namespace

SandboxDescription SandboxDescription::fromJson(const QByteArray& line) {
  const QJsonObject object = QJsonDocument::fromJson(line).object();
  const QJsonObject other = object.value(QLatin1String("otherName")).toObject();
  const QString address = textAt(object, "address");
  const auto certificates = QSslCertificate::fromData(textAt(object, "certificates").toLatin1());
  SandboxDescription result{
      .domain = textAt(object, "domain"),
      .unencrypted = {.address = address, .port = numberAt(object, "http")},
      .encrypted = {.address = address, .port = numberAt(object, "https"), .certificates = certificates},
      .otherName = {.address = address, .port = numberAt(other, "https"), .certificates = certificates},
      .otherNameDomains = textsAt(other, "domains"),
      .serviceRecords = recordsFrom(object.value(QLatin1String("serviceRecords")).toObject())};
  for (const QJsonValue& value : listAt(object, "online")) {
    const QJsonObject online = value.toObject();
    result.onlineServices.append({.hostSuffixes = textsAt(online, "hostSuffixes"),
                                  .autodiscover = QUrl(textAt(online, "autodiscover")),
                                  .authority = textAt(online, "authority"),
                                  .resource = textAt(online, "resource"),
                                  .clientId = textAt(online, "clientId"),
                                  .redirectUri = textAt(online, "redirectUri")});
  }
  for (const QJsonValue& value : listAt(object, "accounts")) {
    const QJsonObject account = value.toObject();
    result.accounts.append({textAt(account, "email"), textAt(account, "username"),
                            textAt(account, "password"), textAt(account, "meaning")});
  }
  for (const QJsonValue& value : listAt(object, "sites")) {
    result.sites.append({textAt(value.toObject(), "site"), textAt(value.toObject(), "meaning")});
  }
  return result;
}

NetworkEndpoint SandboxDescription::endpointOf(const QUrl& address) const {
  if (address.scheme() != QLatin1String("https")) return unencrypted;
  const bool isOther =
      std::any_of(otherNameDomains.begin(), otherNameDomains.end(),
                  [&address](const QString& other) { return isWithinDomain(address.host(), other); });
  return isOther ? otherName : encrypted;
}

ExchangeConfiguration SandboxDescription::addedTo(ExchangeConfiguration configuration) const {
  if (isEmpty()) return configuration;
  configuration.onlineServices.append(onlineServices);
  configuration.network.endpoint = [sandbox = *this, others = std::move(configuration.network.endpoint)](
                                       const QUrl& address) -> std::optional<NetworkEndpoint> {
    if (isWithinDomain(address.host(), sandbox.domain)) return sandbox.endpointOf(address);
    return others ? others(address) : std::nullopt;
  };
  configuration.services = [sandbox = *this, others = std::move(configuration.services)](
                               const QString& name, QObject* context, const ServicesFound& found) {
    if (isWithinDomain(name, sandbox.domain)) return found(sandbox.serviceRecords.value(name));
    return others ? others(name, context, found) : found({});
  };
  return configuration;
}
