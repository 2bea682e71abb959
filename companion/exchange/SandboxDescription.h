#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include "companion/exchange/ExchangeConfiguration.h"

// The description that kz-sandbox prints first: its hosts, accounts and sites.
struct SandboxDescription {
  struct Account {
    QString email;
    QString username;  // empty where none is asked for
    QString password;
    QString meaning;  // what happens to its user
  };
  struct Site {
    QString site;  // its host name
    QString meaning;
  };

  // Empty where the line is none, or where no hosts are played.
  static SandboxDescription fromJson(const QByteArray& line);
  bool isEmpty() const { return domain.isEmpty(); }

  // `configuration` with the sandbox added: its hosts are found on this machine, its certificates vouch for
  // them alone, its online services are further ones. Unchanged where the description is empty.
  ExchangeConfiguration addedTo(ExchangeConfiguration configuration) const;

  QString domain = {};  // its hosts are this one and all below it
  NetworkEndpoint unencrypted = {};
  NetworkEndpoint encrypted = {};
  NetworkEndpoint otherName = {};     // shows a certificate of another name
  QStringList otherNameDomains = {};  // the domains that are found there
  QHash<QString, QList<ServiceRecord>> serviceRecords = {};
  QList<OnlineService> onlineServices = {};
  QList<Account> accounts = {};
  QList<Site> sites = {};

 private:
  NetworkEndpoint endpointOf(const QUrl& address) const;
};
