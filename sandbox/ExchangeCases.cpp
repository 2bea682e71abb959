#include "sandbox/ExchangeCases.h"

#include <QJsonObject>

namespace sandbox {

namespace {

constexpr ExchangeAccount accounts[] = {
    {ExchangeCase::OnPremise, "onprem@corp.sandbox.example", "CORP\\onprem", "correct horse",
     "Exchange with a password. Any other password is refused, and the third one locks the account until the "
     "sandbox starts anew"},
    {ExchangeCase::OnPremise, "locked@corp.sandbox.example", "CORP\\locked", "correct horse",
     "The account is locked from the start: no password is right"},
    {ExchangeCase::Online, "online@cloud.sandbox.example", "", "", "Office 365: sign in in the browser"},
    {ExchangeCase::Online, "online@late.sandbox.example", "", "",
     "Office 365 that takes two seconds longer to sign you in"},
    {ExchangeCase::Online, "online@brief.sandbox.example", "", "",
     "Office 365 that forgets you after a minute: you sign in again"},
    {ExchangeCase::Online, "online@refused.sandbox.example", "", "", "Office 365 that refuses every sign-in"},
    {ExchangeCase::Online, "online@mute.sandbox.example", "", "",
     "Office 365 that falls silent after the sign-in"},
    {ExchangeCase::Online, "online@trouble.sandbox.example", "", "",
     "Office 365 that has a problem (500) after the sign-in"},
    {ExchangeCase::Online, "online@page.sandbox.example", "", "",
     "Office 365 that answers the sign-in with a web page"},
    {ExchangeCase::Online, "online@endless.sandbox.example", "", "",
     "Office 365 that does not say how long the sign-in is good"},
    {ExchangeCase::OtherEmail, "moved@moved.sandbox.example", "CORP\\onprem", "correct horse",
     "Leads to onprem@corp.sandbox.example"},
    {ExchangeCase::PlainRedirect, "hosted@hosted.sandbox.example", "CORP\\onprem", "correct horse",
     "An unencrypted address leads to the server: you are asked first"},
    {ExchangeCase::ServiceRecord, "named@named.sandbox.example", "CORP\\onprem", "correct horse",
     "Only a service record names the server"},
    {ExchangeCase::Slow, "slow@slow.sandbox.example", "CORP\\onprem", "correct horse",
     "Answers after a second"},
    {ExchangeCase::Silent, "silent@silent.sandbox.example", "", "", "Never answers"},
    {ExchangeCase::Drip, "drip@drip.sandbox.example", "", "", "Answers byte by byte"},
    {ExchangeCase::ServerError, "error@error.sandbox.example", "", "",
     "Always answers that it has a problem (500)"},
    {ExchangeCase::OtherName, "certificate@certificate.sandbox.example", "", "",
     "Shows a certificate of another name"},
    {ExchangeCase::Loop, "loop@loop.sandbox.example", "", "", "Leads on a hundred times"},
    {ExchangeCase::BareChallenge, "bare@bare.sandbox.example", "", "",
     "Wants a sign-in that is not supported"},
    {ExchangeCase::Entities, "entities@entities.sandbox.example", "", "", "Answers with XML that swells"},
    {ExchangeCase::Garbage, "garbage@garbage.sandbox.example", "", "", "Answers with a web page"},
    {ExchangeCase::Nothing, "nothing@nothing.sandbox.example", "", "", "Has a web site but no Exchange"},
};

QString domainOf(const ExchangeAccount& account) {
  return QString::fromLatin1(account.email).section(QLatin1Char('@'), 1);
}

}  // namespace

std::span<const ExchangeAccount> exchangeAccounts() {
  return accounts;
}

const ExchangeAccount* accountOfHost(const QString& host) {
  for (const ExchangeAccount& account : accounts) {
    const QString domain = domainOf(account);
    if (host == domain || host.endsWith(QLatin1Char('.') + domain)) return &account;
  }
  return nullptr;
}

QStringList exchangeHosts() {
  QStringList names{QStringLiteral("*.") + sandboxDomain, QStringLiteral("*.online.") + sandboxDomain};
  for (const ExchangeAccount& account : accounts) {
    const QString name = QStringLiteral("*.") + domainOf(account);
    if (account.what != ExchangeCase::OtherName && !names.contains(name)) names.append(name);
  }
  return names;
}

QJsonArray describeAccounts() {
  QJsonArray described;
  for (const ExchangeAccount& account : accounts) {
    described.append(QJsonObject{{"email", account.email},
                                 {"username", account.username},
                                 {"password", account.password},
                                 {"meaning", account.meaning}});
  }
  return described;
}

}  // namespace sandbox
