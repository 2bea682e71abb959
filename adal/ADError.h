#pragma once

#include <QString>

#include "adal/ADALExport.h"

enum class ADErrorCode {
  InvalidArgument,    // an address, client or redirect that cannot be used
  AddressNotAllowed,  // neither https nor http to the loopback address
  CacheFormat,        // stored data that this version cannot read
  CacheBusy,          // the cache was asked from inside its own storage delegate
  Network,            // refused, broken, too slow
  ServerAnswer,       // the authority's answer cannot be used
  InvalidGrant,       // the code or refresh token is not accepted any more
  InvalidScope,       // the grant does not cover the scopes that were asked for
  Refused,            // the authority refused: access_denied and the like
  UserCancelled,
  TimedOut,  // the browser never came back
};

// Why something failed. Fit for traces: never holds a token, a code or text that the authority made up.
struct ADAL_EXPORT ADError {
  ADErrorCode code = ADErrorCode::InvalidArgument;
  QString details;

  QString text() const;
};
