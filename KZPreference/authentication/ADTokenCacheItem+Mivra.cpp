#include "KZPreference/authentication/ADTokenCacheItem+Mivra.h"

#include "adal/ADTokenCacheItem.h"

namespace {

constexpr int expiryMarginSeconds = 600;

}  // namespace

bool isExpiredWithPrejudge(const ADTokenCacheItem& item) {
  if (item.isExpired()) return true;
  return item.expiresOn.addSecs(-expiryMarginSeconds) < adNow();
}
