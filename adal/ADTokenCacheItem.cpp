#include "adal/ADTokenCacheItem.h"

#include "adal/ADClock.h"

bool ADTokenCacheItem::isExpired() const {
  return !expiresOn.isValid() || expiresOn <= adNow();
}

bool ADTokenCacheItem::isSameEntry(const ADTokenCacheItem& other) const {
  if (multiResource != other.multiResource || authority != other.authority || clientId != other.clientId)
    return false;
  // A refresh token for several resources is one entry, whichever resource it was first asked for.
  if (!multiResource && resource != other.resource) return false;
  return userInformation.userId.compare(other.userInformation.userId, Qt::CaseInsensitive) == 0;
}
