#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

#include "adal/ADALExport.h"

// The clock that decides whether tokens have expired; null is the system's. Any thread.
using ADClock = QDateTime (*)();
ADAL_EXPORT void setADClock(ADClock clock);
ADAL_EXPORT QDateTime adNow();

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

  // A token without an expiry time counts as expired.
  bool isExpired() const;

  // Whether storing one of the two replaces the other: same user, authority, client and kind, and
  // for access tokens the same resource.
  bool isSameEntry(const ADTokenCacheItem& other) const;

  bool isOfSameUser(const ADTokenCacheItem& other) const;
  // Same user, authority and client: whether a refresh token of the one gets access tokens like the other.
  bool isOfSameGrant(const ADTokenCacheItem& other) const;

  bool operator==(const ADTokenCacheItem&) const = default;
};

// Replaces the same entry, or appends.
void addOrUpdate(QList<ADTokenCacheItem>& items, const ADTokenCacheItem& item);

// The stored form of a token cache: a mark, a version, the items, a check sum over everything before it.
QByteArray serializedTokens(const QList<ADTokenCacheItem>& items);

// Nothing for data that is truncated, damaged, or of another version or format.
[[nodiscard]] std::optional<QList<ADTokenCacheItem>> deserializedTokens(const QByteArray& data);
