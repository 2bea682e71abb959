#pragma once

#include "adal/ADTokenCacheItem.h"

// Whether the access token is expired or will be within ten minutes. At exactly ten minutes it is not.
inline bool isExpiredWithPrejudge(const ADTokenCacheItem& item) {
  constexpr int marginSeconds = 600;
  return item.isExpired() || item.expiresOn.addSecs(-marginSeconds) < adNow();
}
