#include "companion/exchange/ExchangeConfiguration.h"

#include <algorithm>

std::optional<OnlineService> onlineServiceOf(const QList<OnlineService>& services, const QString& host) {
  for (const OnlineService& service : services) {
    const bool isOurs = std::any_of(service.hostSuffixes.begin(), service.hostSuffixes.end(),
                                    [&host](const QString& suffix) { return isWithinDomain(host, suffix); });
    if (isOurs) return service;
  }
  return {};
}
