#include "sandbox/Cases.h"

#include <QJsonArray>

namespace sandbox {

namespace {

constexpr Account allAccounts[] = {
    {Case::OnPremise, "onprem@corp.sandbox.example", "CORP\\onprem", "correct horse",
     "Exchange with a password. Any other password is refused, and the third one locks the account until the "
     "sandbox is started again"},
    {Case::OnPremise, "locked@corp.sandbox.example", "CORP\\locked", "correct horse",
     "The account is locked from the start: no password is right"},
    {Case::Online, "online@cloud.sandbox.example", "", "", "Office 365: sign in in the browser"},
    {Case::Online, "online@late.sandbox.example", "", "",
     "Office 365 that takes two seconds longer to sign you in"},
    {Case::Online, "online@brief.sandbox.example", "", "",
     "Office 365 whose sign-in ends after a minute: you sign in again"},
    {Case::Online, "online@refused.sandbox.example", "", "", "Office 365 that refuses every sign-in"},
    {Case::Online, "online@mute.sandbox.example", "", "",
     "Office 365 that does not respond after the sign-in"},
    {Case::Online, "online@trouble.sandbox.example", "", "",
     "Office 365 that responds with an error (500) after the sign-in"},
    {Case::Online, "online@page.sandbox.example", "", "",
     "Office 365 that responds to the sign-in with a web page"},
    {Case::Online, "online@endless.sandbox.example", "", "",
     "Office 365 that does not say how long the sign-in is valid"},
    {Case::OtherEmail, "moved@moved.sandbox.example", "CORP\\onprem", "correct horse",
     "Redirects to onprem@corp.sandbox.example"},
    {Case::PlainRedirect, "hosted@hosted.sandbox.example", "CORP\\onprem", "correct horse",
     "An unencrypted address leads to the server: you are asked first"},
    {Case::ServiceRecord, "named@named.sandbox.example", "CORP\\onprem", "correct horse",
     "Only a service record names the server"},
    {Case::Slow, "slow@slow.sandbox.example", "CORP\\onprem", "correct horse", "Responds after a second"},
    {Case::Silent, "silent@silent.sandbox.example", "", "", "Never responds"},
    {Case::Drip, "drip@drip.sandbox.example", "", "", "Responds slowly, byte by byte"},
    {Case::ServerError, "error@error.sandbox.example", "", "", "Always responds with an error (500)"},
    {Case::OtherName, "certificate@certificate.sandbox.example", "", "",
     "Has a certificate for another name"},
    {Case::Loop, "loop@loop.sandbox.example", "", "", "Redirects a hundred times"},
    {Case::BareChallenge, "bare@bare.sandbox.example", "", "",
     "Requires a sign-in method that is not supported"},
    {Case::Entities, "entities@entities.sandbox.example", "", "",
     "Responds with XML that expands to gigabytes"},
    {Case::Garbage, "garbage@garbage.sandbox.example", "", "", "Responds with a web page"},
    {Case::Nothing, "nothing@nothing.sandbox.example", "", "", "Has a web site but no Exchange"},
};

constexpr Site allSites[] = {
    {Case::Newer, "meetings.sandbox.example", "Works and offers version 9.1.0"},
    {Case::Current, "current.sandbox.example", "Works; there is no newer version"},
    {Case::Slow, "slow.meetings.sandbox.example", "Works, but each response takes a second"},
    {Case::Silent, "silent.meetings.sandbox.example", "Never responds"},
    {Case::ServerError, "error.meetings.sandbox.example", "Always responds with an error (500)"},
    {Case::OtherName, "certificate.meetings.sandbox.example", "Has a certificate for another name"},
    {Case::Loop, "loop.meetings.sandbox.example", "Redirects a hundred times"},
    {Case::Garbage, "garbage.meetings.sandbox.example", "Responds to every request with a web page"},
};

}  // namespace

std::span<const Account> accounts() {
  return allAccounts;
}

std::span<const Site> sites() {
  return allSites;
}

const Account* accountOfHost(const QString& host) {
  for (const Account& account : allAccounts) {
    const QString domain = QString::fromLatin1(account.email).section(QLatin1Char('@'), 1);
    if (host == domain || host.endsWith(QLatin1Char('.') + domain)) return &account;
  }
  return nullptr;
}

const Site* siteOfHost(const QString& host) {
  if (host == downloadsHost()) return &allSites[0];
  for (const Site& one : allSites) {
    if (host == QLatin1String(one.site)) return &one;
  }
  return nullptr;
}

QString downloadsHost() {
  return QStringLiteral("downloads.") + sandboxDomain;
}

QJsonObject describeCases() {
  QJsonArray accountList;
  for (const Account& account : allAccounts) {
    accountList.append(QJsonObject{{"email", account.email},
                                   {"username", account.username},
                                   {"password", account.password},
                                   {"meaning", account.meaning}});
  }
  QJsonArray siteList;
  for (const Site& one : allSites) {
    siteList.append(QJsonObject{{"site", one.site}, {"meaning", one.meaning}});
  }
  return {{"accounts", accountList}, {"sites", siteList}};
}

}  // namespace sandbox
