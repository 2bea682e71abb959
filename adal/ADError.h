#pragma once

#include <QString>

#include "adal/ADALExport.h"

enum class ADErrorCode {
  InvalidArgument,    // an address, client or redirect that cannot be used
  AddressNotAllowed,  // neither https nor http to the loopback address
  CacheFormat,        // stored data that this version cannot read
  CacheBusy,          // the cache was asked from inside its own storage delegate
  Network,            // refused, broken, too slow
  ServerAnswer,       // the authority answered something that is no answer
  InvalidGrant,       // the code or refresh token is not accepted any more
  InvalidScope,       // the grant does not reach as far as what was asked for
  Refused,            // the authority said no: access_denied and its relatives
  UserCancelled,
  TimedOut,  // the browser never came back
};

// Why something failed. Fit for traces: never holds a token, a code or text that the authority made up.
struct ADAL_EXPORT ADError {
  ADErrorCode code = ADErrorCode::InvalidArgument;
  QString details;

  QString text() const;
};
