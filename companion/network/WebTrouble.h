#pragma once

#include <QString>

#include "companion/network/HttpCall.h"

// Why an address of a meeting service gave nothing.
enum class WebTrouble {
  None,
  HostUnknown,
  Unreachable,
  TooSlow,
  TooLong,
  Certificate,
  CertificateOfOtherName,
  NotTaken,
  NotFound,
  ServerError,
  TooManyRedirects,
  Unsafe,
  BadAnswer,
};

// None where the answer is good or leads on.
WebTrouble webTroubleOf(const HttpAnswer& answer);

// A sentence for the user that says what to do next.
QString messageOf(WebTrouble trouble, const QString& host);
