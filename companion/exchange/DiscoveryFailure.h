#pragma once

#include <QString>

// Why a candidate came to nothing. The later in this list, the more it tells the user.
enum class DiscoveryFailureKind {
  HostUnknown,
  NotFound,
  Unreachable,
  TooSlow,
  ServerError,
  Forbidden,
  BadAnswer,
  Unencrypted,
  TooManyRedirects,
  Declined,
  Certificate,
  CertificateOfOtherName,
  UnsupportedSignIn,
  ServerSays,
  BadUsername,
  NoCredential,
  TokenRefused,
  BadEmail,
};

struct DiscoveryFailure {
  DiscoveryFailureKind kind = DiscoveryFailureKind::HostUnknown;
  QString host = {};
  QString serverText = {};  // for ServerSays
};

// A sentence for the user that says what to do next.
QString messageOf(const DiscoveryFailure& failure);
