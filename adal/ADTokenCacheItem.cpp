#include "adal/ADTokenCacheItem.h"

#include "adal/ADAuthenticationSettings.h"

bool ADTokenCacheItem::isExpired() const {
  return !expiresOn.isValid() || expiresOn <= ADAuthenticationSettings::sharedInstance().now();
}

bool ADTokenCacheItem::isSameEntry(const ADTokenCacheItem& other) const {
  return multiResource == other.multiResource && authority == other.authority && clientId == other.clientId &&
         resource == other.resource &&
         userInformation.userId.compare(other.userInformation.userId, Qt::CaseInsensitive) == 0;
}
