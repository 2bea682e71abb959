#pragma once

#include <QJsonArray>
#include <QString>
#include <span>

#include "sandbox/Authority.h"

namespace sandbox {

// One Office 365, with an authority of its own.
struct OnlineCase {
  const char* domain;  // of its hosts
  const char* path;    // of its authority
  Authority::Fault fault = Authority::Fault::None;
  bool isConsentRefused = false;
  int lifetime = 0;  // of a token, in seconds; 0 for the usual one
};

std::span<const OnlineCase> onlineCases();

// The service of a mail domain: its own where it has one, otherwise the one without a fault.
const OnlineCase& onlineCaseOf(const QString& mailDomain);

// Where a service tells its users' Exchange.
QString onlineDiscoveryHost(const OnlineCase& online);

// What a host needs to know of the services; `authorities` is the address that their authorities lie below.
QJsonArray describeOnlineCases(const QString& authorities);

}  // namespace sandbox
