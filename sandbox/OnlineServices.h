#pragma once

#include <QJsonArray>
#include <QString>
#include <memory>
#include <vector>

#include "sandbox/Authority.h"

namespace sandbox {

// Where an Office 365 answers Autodiscover: that of the host's mail domain where it has one of its own,
// otherwise the one without a fault.
QString onlineDiscoveryHostOf(const QString& host);
bool isOnlineDiscoveryHost(const QString& host);

// What a client needs to know of every Office 365; `authorities` is the address that their authorities are
// below.
QJsonArray describeOnlineServices(const QString& authorities);

// The sign-in authorities of every Office 365.
class OnlineAuthorities final {
 public:
  // Of the authorities without a fault in it.
  struct Settings {
    Authority::Consent consent = Authority::Consent::AskUser;
    Authority::Generation generation = Authority::Generation::Resource;
    int lifetime = 3600;  // of a token, in seconds
  };

  // They answer at the server, which must outlive them.
  OnlineAuthorities(HttpServer& server, const Settings& settings);

  const Authority& faultless() const { return *m_authorities.front(); }
  bool isGranted(const QString& accessToken) const;

 private:
  std::vector<std::unique_ptr<Authority>> m_authorities;
};

}  // namespace sandbox
