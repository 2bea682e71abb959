#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <chrono>
#include <functional>
#include <optional>

#include "companion/exchange/ServiceRecords.h"
#include "companion/network/NetworkConfiguration.h"

// Where one online service answers and where its users sign in.
struct OnlineService {
  QStringList hostSuffixes;  // a host is the service's when it is one of these or lies below one
  QUrl autodiscover;         // requested with a token
  QString authority;
  QString resource;
  QString clientId;
  QString redirectUri;
};

// Asks the user whether an address outside the mail domain may be used. One question at a time; the response
// may come at any later time, or never.
struct RedirectPrompt {
  using Answer = std::function<void(bool isAllowed)>;

  std::function<void(const QUrl& target, Answer answer)> ask;  // empty: everything is declined
  std::function<void()> withdraw;                              // the open question matters no more
};

struct ExchangeConfiguration {
  NetworkConfiguration network = {};
  std::chrono::milliseconds stagger{250};  // between the starts of two candidates
  QList<OnlineService> onlineServices = {};
  ServiceLookup services = {};
  RedirectPrompt prompt = {};

  // The service that owns the host; nothing for any other host.
  std::optional<OnlineService> onlineServiceOf(const QString& host) const;
};

// The internet: its name servers, the system's certificates, and the public online services. The two texts
// are the registration of the application that signs in.
ExchangeConfiguration productionExchange(const QString& clientId, const QString& redirectUri);
