#pragma once

#include <QJsonObject>
#include <QString>
#include <span>

namespace sandbox {

// The behaviour of an account's or a site's server.
enum class Case {
  // Of both
  Slow,
  Silent,
  ServerError,
  OtherName,
  Loop,
  Garbage,
  // Of accounts
  OnPremise,
  Online,
  OtherEmail,
  PlainRedirect,
  ServiceRecord,
  Drip,
  BareChallenge,
  Entities,
  Nothing,
  // Of sites
  Newer,
  Current,
};

struct Account {
  Case what;
  const char* email;
  const char* username;
  const char* password;
  const char* meaning;  // for users
};

struct Site {
  Case what;
  const char* site;
  const char* meaning;  // for users
};

inline const QString sandboxDomain = QStringLiteral("sandbox.example");

// The first one is Exchange with a password; the first site works.
std::span<const Account> accounts();
std::span<const Site> sites();

// The account whose mail domain is the host or a parent of it; null when there is none.
const Account* accountOfHost(const QString& host);
// The site of that host; one site has a second host for its downloads.
const Site* siteOfHost(const QString& host);
QString downloadsHost();

// The accounts and sites to try, with their meanings.
QJsonObject describeCases();

}  // namespace sandbox
