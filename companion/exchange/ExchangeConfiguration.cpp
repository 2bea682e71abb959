#include "companion/exchange/ExchangeConfiguration.h"

#include <algorithm>

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
