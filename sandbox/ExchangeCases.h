#pragma once

#include <QJsonArray>
#include <QString>
#include <QStringList>
#include <span>

namespace sandbox {

// What happens to the accounts of one mail domain.
enum class ExchangeCase {
  OnPremise,
  Online,
  OtherEmail,
  PlainRedirect,
  ServiceRecord,
  Slow,
  Silent,
  Drip,
  ServerError,
  OtherName,
  Loop,
  BareChallenge,
  Entities,
  Garbage,
  Nothing,
};

struct ExchangeAccount {
  ExchangeCase what;
  const char* email;
  const char* username;
  const char* password;
  const char* meaning;  // for whoever tries it
};

inline const QString sandboxDomain = QStringLiteral("sandbox.example");

std::span<const ExchangeAccount> exchangeAccounts();

// The case of that host; an unknown one plays no part, and nothing is there.
const ExchangeAccount* accountOfHost(const QString& host);

// Every host name that is played, but those whose certificate is to be another's.
QStringList exchangeHosts();

QJsonArray describeAccounts();

}  // namespace sandbox
