#pragma once

#include <QDateTime>
#include <QString>

#include "adal/ADALExport.h"

struct ADUserInformation {
  QString userId;

  bool operator==(const ADUserInformation&) const = default;
};

// One stored token: an access token for one resource, or a refresh token that is good for several resources.
struct ADAL_EXPORT ADTokenCacheItem {
  ADUserInformation userInformation;
  QString authority;
  QString resource;
  QString clientId;
  QString accessToken;
  QString refreshToken;
  bool multiResource = false;
  QDateTime expiresOn;  // invalid for an item without an access token

  bool isMultiResourceRefreshToken() const { return multiResource; }

  // At the settings' clock. A token without an expiry time counts as expired.
  bool isExpired() const;

  // Whether storing one of the two replaces the other: same user, authority, client and kind, and
  // for access tokens the same resource.
  bool isSameEntry(const ADTokenCacheItem& other) const;

  bool operator==(const ADTokenCacheItem&) const = default;
};
