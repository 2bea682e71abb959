#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <chrono>
#include <functional>
#include <optional>

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

// A service record of the domain name system.
struct ServiceRecord {
  QString target;
  quint16 port = 0;
  quint16 priority = 0;
  quint16 weight = 0;
};

using ServicesFound = std::function<void(const QList<ServiceRecord>&)>;
// Calls back at most once, with nothing where there is none or the lookup failed, and never after `context`
// is gone.
using ServiceLookup = std::function<void(const QString& name, QObject* context, ServicesFound found)>;

// How the user is asked whether an address outside the mail domain may be used. One question at a time; the
// answer may come at any later moment, or never.
struct RedirectPrompt {
  using Answer = std::function<void(bool isAllowed)>;

  std::function<void(const QUrl& target, Answer answer)> ask;  // empty: everything is declined
  std::function<void()> withdraw;                              // the open question matters no more
};

struct ExchangeLimits {
  std::chrono::milliseconds stagger{250};  // between the starts of two candidates
  int hops = 10;
};

struct ExchangeConfiguration {
  NetworkConfiguration network = {};
  ExchangeLimits limits = {};
  QList<OnlineService> onlineServices = {};
  ServiceLookup services = {};
  RedirectPrompt prompt = {};

  // The service that owns the host; nothing for any other host.
  std::optional<OnlineService> onlineServiceOf(const QString& host) const;
};

// The internet: its name servers, the system's certificates, and the public online services. The two texts
// are the registration of the application that signs in.
ExchangeConfiguration productionExchange(const QString& clientId, const QString& redirectUri);
