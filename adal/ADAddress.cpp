#include "adal/ADAddress.h"

#include <QHostAddress>

namespace {

bool isPlainLoopback(const QUrl& address) {
  if (address.scheme() != QLatin1String("http")) return false;
  return address.host() == QLatin1String("localhost") || QHostAddress(address.host()).isLoopback();
}

}  // namespace

bool isAllowedAddress(const QUrl& address) {
  if (!address.isValid() || address.host().isEmpty() || !address.userInfo().isEmpty()) return false;
  return address.scheme() == QLatin1String("https") || isPlainLoopback(address);
}

bool isLoopbackRedirect(const QUrl& address) {
  return address.isValid() && isPlainLoopback(address) && !address.hasFragment() &&
         address.userInfo().isEmpty();
}
