#pragma once

#include <QJsonObject>
#include <QString>
#include <span>

namespace sandbox {

// What happens to the users of an account or a site.
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
  const char* meaning;  // for people who try it
};

struct Site {
  Case what;
  const char* site;
  const char* meaning;  // for people who try it
};

inline const QString sandboxDomain = QStringLiteral("sandbox.example");

// The first one is Exchange with a password; the first site works.
std::span<const Account> accounts();
std::span<const Site> sites();

// The account whose mail domain the host is or lies below; null where there is none.
const Account* accountOfHost(const QString& host);
// The same for the site, of which one has its downloads on a host of their own.
const Site* siteOfHost(const QString& host);
QString downloadsHost();

// The accounts and sites to try, with their meanings.
QJsonObject describeCases();

}  // namespace sandbox
