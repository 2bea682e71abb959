#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

// What a discovered Exchange says of itself.
struct ExchangeServices {
  QUrl externalUrl;  // empty where it says none
  QUrl internalUrl;
};

struct AutodiscoverAnswer {
  enum class Kind { Unreadable, Services, OtherEmail, OtherUrl, Error };

  Kind kind = Kind::Unreadable;
  ExchangeServices services;
  QString otherEmail;
  QUrl otherUrl;
  QString errorText;  // the server's own, one line, at most 200 characters
};

QByteArray autodiscoverRequest(const QString& email);

// Anything that is not an answer of the protocol is Unreadable. Only https addresses are taken over.
AutodiscoverAnswer readAutodiscoverAnswer(const QByteArray& xml);
