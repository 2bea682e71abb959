#include "companion/network/NetworkFailure.h"

#include "companion/texts/CompanionText.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

// `%1` is the host, `%2` the detail.
QString failurePattern(FailureKind kind) {
  switch (kind) {
    case FailureKind::None:
    case FailureKind::Explained:
      return {};
    case FailureKind::HostUnknown:
      return companionText("%1 was not found. Check its name and your network connection.");
    case FailureKind::NotFound:
      return companionText(
          "%1 does not have what was asked of it. Check its name, or tell your administrator.");
    case FailureKind::NoExchange:
      return companionText("%1 has no Exchange service. Check the address, or ask your administrator.");
    case FailureKind::Unreachable:
      return companionText("%1 cannot be reached. Check your network connection and try again.");
    case FailureKind::TooSlow:
      return companionText("%1 did not answer in time. Try again later.");
    case FailureKind::ServerError:
      return companionText("%1 has a problem of its own. Try again later, or tell your administrator.");
    case FailureKind::Forbidden:
      return companionText("%1 does not let you in. Ask your administrator for access.");
    case FailureKind::BadResponse:
      return companionText("%1 gave no usable answer. Check its name, or tell your administrator.");
    case FailureKind::Unsafe:
      return companionText(
          "%1 leads to an address that is unencrypted or otherwise unsafe, which is not used. Tell your "
          "administrator.");
    case FailureKind::TooManyRedirects:
      return companionText("%1 keeps leading to other addresses. Tell your administrator.");
    case FailureKind::Declined:
      return companionText("You did not allow %1. Detect again if you trust it.");
    case FailureKind::Certificate:
      return companionText("The certificate of %1 is not trusted. Ask your administrator before you go on.");
    case FailureKind::CertificateExpired:
      return companionText(
          "The certificate of %1 has expired. Check the date of this computer, or ask your administrator to "
          "renew it.");
    case FailureKind::CertificateNotYetValid:
      return companionText("The certificate of %1 is not valid yet. Check the date of this computer.");
    case FailureKind::Encryption:
      return companionText(
          "%1 does not offer the encryption that is needed. Ask your administrator to mend it.");
    case FailureKind::CertificateOfOtherName:
      return companionText(
          "The certificate of %1 belongs to another name. Ask your administrator to mend it.");
    case FailureKind::UnsupportedSignIn:
      return companionText(
          "%1 does not accept a user name and password (Basic), the only way supported. Ask your "
          "administrator to allow it.");
    case FailureKind::ServerMessage:
      return companionText("%1 says: \"%2\" Check the address, or ask your administrator.");
    case FailureKind::BadUsername:
      return companionText("A user name with a colon cannot be sent to %1. Use your email address.");
    case FailureKind::NoCredential:
      return companionText("%1 needs your user name and password. Detect the account again and enter them.");
    case FailureKind::CredentialRefused:
      return companionText("%1 refused the user name or the password. Detect the account again.");
    case FailureKind::TokenRefused:
      return companionText("%1 did not accept your sign-in. Detect the account again to sign in anew.");
    case FailureKind::BadEmail:
      return companionText("This email address has no usable domain. Check it for typing errors.");
  }
  return {};
}

}  // namespace

QString NetworkFailure::message() const {
  if (kind == FailureKind::Explained) return detail;
  const QString pattern = failurePattern(kind);
  if (kind == FailureKind::ServerMessage) return pattern.arg(host, detail);
  return pattern.contains(QLatin1String("%1")) ? pattern.arg(host) : pattern;
}

Dictionary NetworkFailure::result() const {
  return {{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, message()}}}};
}
