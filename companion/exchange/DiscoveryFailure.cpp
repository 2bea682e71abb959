#include "companion/exchange/DiscoveryFailure.h"

namespace {

QString patternOf(DiscoveryFailureKind kind) {
  using Kind = DiscoveryFailureKind;
  switch (kind) {
    case Kind::HostUnknown:
      return QStringLiteral("%1 was not found. Check the address and your network connection.");
    case Kind::NotFound:
      return QStringLiteral("%1 has no Exchange service. Check the address, or ask your administrator.");
    case Kind::Forbidden:
      return QStringLiteral("%1 does not let you in. Ask your administrator for access.");
    case Kind::Unreachable:
      return QStringLiteral("%1 cannot be reached. Check your network connection and try again.");
    case Kind::TooSlow:
      return QStringLiteral("%1 did not answer in time. Try again later.");
    case Kind::ServerError:
      return QStringLiteral("%1 has a problem of its own. Try again later, or tell your administrator.");
    case Kind::BadAnswer:
      return QStringLiteral("%1 gave no usable answer. Ask your administrator to check Autodiscover.");
    case Kind::Unencrypted:
      return QStringLiteral(
          "%1 leads to an unencrypted address, which is not used. Tell your administrator.");
    case Kind::TooManyRedirects:
      return QStringLiteral(
          "%1 keeps leading to other addresses. Ask your administrator to check Autodiscover.");
    case Kind::Declined:
      return QStringLiteral("You did not allow %1. Detect again if you trust it.");
    case Kind::Certificate:
      return QStringLiteral("The certificate of %1 is not trusted. Ask your administrator before you go on.");
    case Kind::CertificateOfOtherName:
      return QStringLiteral(
          "The certificate of %1 belongs to another name. Ask your administrator to mend it.");
    case Kind::UnsupportedSignIn:
      return QStringLiteral(
          "%1 does not accept a user name and password (Basic), the only way supported. "
          "Ask your administrator to allow it.");
    case Kind::ServerSays:
      return QStringLiteral("%1 says: \"%2\" Check the address, or ask your administrator.");
    case Kind::BadUsername:
      return QStringLiteral("A user name with a colon cannot be sent to %1. Use your email address.");
    case Kind::NoCredential:
      return QStringLiteral("%1 needs your user name and password. Detect again and enter them.");
    case Kind::TokenRefused:
      return QStringLiteral("%1 did not accept your sign-in. Detect again to sign in anew.");
    case Kind::BadEmail:
      return QStringLiteral("This email address has no usable domain. Check it for typing errors.");
  }
  return {};
}

}  // namespace

QString messageOf(const DiscoveryFailure& failure) {
  const QString pattern = patternOf(failure.kind);
  if (failure.kind == DiscoveryFailureKind::BadEmail) return pattern;
  if (failure.kind == DiscoveryFailureKind::ServerSays) return pattern.arg(failure.host, failure.serverText);
  return pattern.arg(failure.host);
}
