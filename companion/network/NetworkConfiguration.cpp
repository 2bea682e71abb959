#include "companion/network/NetworkConfiguration.h"

bool isWithinDomain(const QString& host, const QString& domain) {
  if (host.isEmpty() || domain.isEmpty()) return false;
  return host.compare(domain, Qt::CaseInsensitive) == 0 ||
         host.endsWith(QLatin1Char('.') + domain, Qt::CaseInsensitive);
}
