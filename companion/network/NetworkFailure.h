#pragma once

#include <QString>

#include "host/KZFoundation/Dictionary.h"

// Why a request failed. Later values explain more: of several failures the highest one is shown, and what
// the user did before what a server did.
enum class FailureKind {
  None,
  HostUnknown,
  NotFound,
  NoExchange,
  Unreachable,
  TooSlow,
  ServerError,
  Forbidden,
  BadResponse,
  Unsafe,
  TooManyRedirects,
  Encryption,
  Certificate,
  CertificateExpired,
  CertificateNotYetValid,
  CertificateOfOtherName,
  UnsupportedSignIn,
  ServerMessage,
  Declined,
  BadUsername,
  NoCredential,
  CredentialRefused,
  TokenRefused,
  BadEmail,
  Explained,
};

struct NetworkFailure {
  FailureKind kind = FailureKind::None;
  QString host = {};
  QString detail = {};  // the server's own text of ServerMessage; the whole sentence of Explained

  explicit operator bool() const { return kind != FailureKind::None; }
  // For the user: what happened and what to do next.
  QString message() const;
  // The content of a notification that reports it to the plug-in.
  Dictionary result() const;
};
