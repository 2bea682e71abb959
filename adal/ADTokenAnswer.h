#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <optional>

#include "adal/ADError.h"
#include "adal/ADTokenCacheItem.h"

struct ADWebAnswer;

// What a token endpoint granted.
struct ADTokenAnswer {
  QString accessToken;
  QString refreshToken;  // empty: none came
  QDateTime expiresOn;
  QString userId;  // empty: no id_token came
};

struct ADTokenAnswerOrError {
  ADTokenAnswer answer;
  std::optional<ADError> error;
};

// What the tokens of an answer are stored for.
struct ADTokenTarget {
  QString userId;
  QString authority;
  QString resource;
  QString clientId;
};

// An id_token that names no user, or is for another client, is an error. Its signature is not checked: it
// comes straight from the token endpoint, which the connection has authenticated.
ADTokenAnswerOrError tokenAnswer(const ADWebAnswer& answer, const QString& clientId, const QDateTime& now);

// The items to store for an answer, the refresh token's first, the access token's last. Every refresh token
// counts as one for several resources: nothing in the protocol binds it to one, and a look-up needs both.
QList<ADTokenCacheItem> itemsForAnswer(const ADTokenAnswer& answer, const ADTokenTarget& target);

// Into the default cache, in one write.
void storeItems(const QList<ADTokenCacheItem>& items);
