#include "companion/network/WebAddress.h"

#include <QHostAddress>

bool isLoopback(const QUrl& address) {
  const QString host = address.host();
  return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

bool isSafeAddress(const QUrl& address) {
  if (!address.isValid() || address.host().isEmpty() || !address.userInfo().isEmpty()) return false;
  return address.scheme() == QLatin1String("https") ||
         (address.scheme() == QLatin1String("http") && isLoopback(address));
}

bool isSafeStep(const QUrl& from, const QUrl& to) {
  return isSafeAddress(to) && (isLoopback(from) || !isLoopback(to));
}
