#include "adal/ADError.h"

namespace {

QString errorName(ADErrorCode code) {
  switch (code) {
    case ADErrorCode::InvalidArgument:
      return QStringLiteral("invalid argument");
    case ADErrorCode::AddressNotAllowed:
      return QStringLiteral("address not allowed");
    case ADErrorCode::CacheFormat:
      return QStringLiteral("unreadable cache");
    case ADErrorCode::CacheBusy:
      return QStringLiteral("cache busy");
    case ADErrorCode::Network:
      return QStringLiteral("network");
    case ADErrorCode::Unavailable:
      return QStringLiteral("unavailable");
    case ADErrorCode::ServerAnswer:
      return QStringLiteral("bad answer");
    case ADErrorCode::InvalidGrant:
      return QStringLiteral("invalid grant");
    case ADErrorCode::InvalidScope:
      return QStringLiteral("invalid scope");
    case ADErrorCode::Refused:
      return QStringLiteral("refused");
    case ADErrorCode::UserCancelled:
      return QStringLiteral("cancelled");
    case ADErrorCode::TimedOut:
      return QStringLiteral("timed out");
  }
  return {};
}

}  // namespace

bool canBeTriedLater(ADErrorCode code) {
  return code == ADErrorCode::CacheBusy || code == ADErrorCode::Network || code == ADErrorCode::Unavailable ||
         code == ADErrorCode::TimedOut;
}

QString ADError::text() const {
  return details.isEmpty() ? errorName(code) : errorName(code) + QStringLiteral(": ") + details;
}
