#include "companion/network/SandboxEndpoints.h"

#include <utility>

namespace {

// Services call the same thing by one name or the other.
QString firstTextAt(const QJsonObject& object, const char* key, const char* otherKey) {
  const QJsonValue value = object.value(QLatin1String(key));
  return value.isString() ? value.toString() : object.value(QLatin1String(otherKey)).toString();
}

}  // namespace

EndpointFinder sandboxEndpoints(const QJsonObject& description, EndpointFinder others) {
  const QJsonObject otherName = description.value(QLatin1String("otherName")).toObject();
  const QString domain = description.value(QLatin1String("domain")).toString();
  const auto certificates =
      QSslCertificate::fromData(description.value(QLatin1String("certificates")).toString().toLatin1());
  return [=, others = std::move(others)](const QUrl& url) {
    if (!isWithinDomain(url.host(), domain)) return others ? others(url) : std::nullopt;
    const bool isEncrypted = url.scheme() == QLatin1String("https");
    const bool isOtherName =
        isEncrypted && isWithinDomain(url.host(), firstTextAt(otherName, "domain", "site"));
    const QJsonObject& ports = isOtherName ? otherName : description;
    const int port = ports.value(isEncrypted ? QLatin1String("https") : QLatin1String("http")).toInt();
    return std::optional<NetworkEndpoint>({.address = firstTextAt(description, "address", "host"),
                                           .port = static_cast<quint16>(port),
                                           .certificates = certificates});
  };
}
