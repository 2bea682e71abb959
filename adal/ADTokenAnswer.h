#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

#include "adal/ADError.h"
#include "adal/ADTokenCacheItem.h"

struct ADWebAnswer;

// The tokens that a token endpoint granted.
struct ADTokenAnswer {
  QString accessToken;
  QString refreshToken;  // empty when there was none
  QDateTime expiresOn;
  QString userId;  // empty when there was no id_token
};

struct ADTokenAnswerOrError {
  ADTokenAnswer answer;
  std::optional<ADError> error;
};

// What a token answer must agree with.
struct ADTokenExpectation {
  QString clientId;
  QString issuer;  // empty: any
};

// The account and resource that tokens are stored for.
struct ADTokenTarget {
  QString userId;
  QString authority;
  QString resource;
  QString clientId;
};

// An id_token that names no user, or is for another client, is an error. Its signature is not checked,
// because TLS has authenticated the token endpoint that it comes from.
ADTokenAnswerOrError tokenAnswer(const ADWebAnswer& answer, const ADTokenExpectation& expected,
                                 const QDateTime& now);

// The items to store for an answer, the refresh token's first, the access token's last. Every refresh token
// is stored as one for several resources: the protocol does not bind it to one, and a look-up needs both
// items.
QList<ADTokenCacheItem> itemsForAnswer(const ADTokenAnswer& answer, const ADTokenTarget& target);

// Stores the items in the default cache in one write. A failure is logged.
void storeItems(const QList<ADTokenCacheItem>& items);
