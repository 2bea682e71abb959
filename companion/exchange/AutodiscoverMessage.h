#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

// Where the web service of a discovered Exchange is.
struct ExchangeServices {
  QUrl externalUrl = {};  // empty where the server gives none
  QUrl internalUrl = {};
};

struct AutodiscoverResponse {
  enum class Kind { Unreadable, Services, OtherEmail, OtherUrl, Error };

  Kind kind = Kind::Unreadable;
  ExchangeServices services = {};
  QString otherEmail = {};
  QUrl otherUrl = {};      // not checked
  QString errorText = {};  // the server's own, one line, at most 200 characters
};

QByteArray autodiscoverRequest(const QString& email);

// Anything that is not a response of the protocol is Unreadable. Of the services only safe addresses are
// taken over.
AutodiscoverResponse readAutodiscoverResponse(const QByteArray& xml);
