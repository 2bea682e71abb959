#pragma once

#include <QString>

#include "adal/ADALExport.h"

enum class ADErrorCode {
  InvalidArgument,    // an address, client or redirect that cannot be used
  AddressNotAllowed,  // neither https nor http to the loopback address
  CacheFormat,        // stored data that this version cannot read
  CacheBusy,          // the cache was used from inside its own storage delegate
  Network,            // connection refused, broken or too slow
  Unavailable,        // the authority cannot answer now: 5xx, 429, temporarily_unavailable
  ServerAnswer,       // the authority's answer cannot be used
  InvalidGrant,       // the code or refresh token is no longer accepted
  InvalidScope,       // the grant does not cover the requested scopes
  Refused,            // the authority refused: access_denied and the like
  UserCancelled,
  TimedOut,  // no redirect from the browser in time
};

// Whether the same request may succeed later. If not, the user has to sign in again.
ADAL_EXPORT bool canBeTriedLater(ADErrorCode code);

// Why something failed. Safe to trace: contains no token, no code and no text of the authority's own.
struct ADAL_EXPORT ADError {
  ADErrorCode code = ADErrorCode::InvalidArgument;
  QString details;

  QString text() const;
};
