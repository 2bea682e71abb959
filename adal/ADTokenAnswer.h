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
  QString issuer;       // empty: any
  QString userId = {};  // empty: any
};

// The account and resource that tokens are stored for.
struct ADTokenTarget {
  QString userId;
  QString authority;
  QString resource;
  QString clientId;
};

// An authority that does not say how long its access token is good is taken to mean an hour. An id_token that
// is for another client, from another issuer, expired by the server's own clock, or of no or another user is
// an error. Its signature is not checked, because TLS has authenticated the token endpoint that it comes
// from.
ADTokenAnswerOrError tokenAnswer(const ADWebAnswer& answer, const ADTokenExpectation& expected,
                                 const QDateTime& now);

// The items to store for an answer, the refresh token's first, the access token's last. Every refresh token
// is stored as one for several resources: the protocol does not bind it to one, and a look-up needs both
// items.
QList<ADTokenCacheItem> itemsForAnswer(const ADTokenAnswer& answer, const ADTokenTarget& target);

// Stores the items of a sign-in in the default cache, in place of what they supersede. A failure is logged.
void storeSignedIn(const QList<ADTokenCacheItem>& items);
