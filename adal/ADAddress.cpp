#include "adal/ADAddress.h"

#include <QHostAddress>

namespace {

bool isPlainLoopback(const QUrl& address) {
  if (address.scheme() != QLatin1String("http")) return false;
  return address.host() == QLatin1String("localhost") || QHostAddress(address.host()).isLoopback();
}

QString decodedParameter(QByteArray text) {
  text.replace('+', ' ');
  return QUrl::fromPercentEncoding(text);
}

}  // namespace

bool isAllowedAddress(const QUrl& address) {
  if (!address.isValid() || address.host().isEmpty() || !address.userInfo().isEmpty()) return false;
  return address.scheme() == QLatin1String("https") || isPlainLoopback(address);
}

bool isSameOrigin(const QUrl& left, const QUrl& right) {
  const int usualPort = left.scheme() == QLatin1String("https") ? 443 : 80;
  return left.scheme() == right.scheme() && left.host() == right.host() &&
         left.port(usualPort) == right.port(usualPort);
}

bool isLoopbackRedirect(const QUrl& address) {
  return address.isValid() && isPlainLoopback(address) && !address.hasFragment() &&
         address.userInfo().isEmpty();
}

// QUrlQuery does not encode "+", which servers decode as a space.
QByteArray encodedParameters(const ADParameters& parameters) {
  QByteArray encoded;
  for (const auto& [name, value] : parameters) {
    if (!encoded.isEmpty()) encoded += '&';
    encoded += QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value);
  }
  return encoded;
}

ADParameters decodedParameters(QByteArrayView encoded) {
  ADParameters parameters;
  for (const QByteArray& pair : encoded.toByteArray().split('&')) {
    if (pair.isEmpty()) continue;
    const qsizetype sign = pair.indexOf('=');
    const QByteArray value = sign < 0 ? QByteArray() : pair.sliced(sign + 1);
    parameters.append({decodedParameter(sign < 0 ? pair : pair.first(sign)), decodedParameter(value)});
  }
  return parameters;
}

std::optional<QString> onlyValue(const ADParameters& parameters, const QString& name) {
  std::optional<QString> found;
  for (const auto& [key, value] : parameters) {
    if (key != name) continue;
    if (found) return {};
    found = value;
  }
  return found;
}
