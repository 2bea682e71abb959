#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

#include "companion/exchange/ExchangeConfiguration.h"

// An account of the sandbox, for the user to try.
struct SandboxAccount {
  QString email;
  QString username;  // empty where none is asked for
  QString password;
  QString meaning;
};

// `configuration` with the sandbox added to it: its hosts are found on this machine, its certificates vouch
// for them alone, its online services are further ones. `description` is the "exchange" of what kz-sandbox
// prints first; with an empty one nothing is added.
ExchangeConfiguration withSandbox(ExchangeConfiguration configuration, const QJsonObject& description);

QList<SandboxAccount> sandboxAccounts(const QJsonObject& description);
