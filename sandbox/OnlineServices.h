#pragma once

#include <QJsonArray>
#include <QString>
#include <memory>
#include <vector>

#include "sandbox/Authority.h"

namespace sandbox {

// The Autodiscover host of an Office 365: that of the host's mail domain if there is one, otherwise of the
// one without a fault.
QString onlineDiscoveryHostOf(const QString& host);
bool isOnlineDiscoveryHost(const QString& host);

// What a client needs to know about every Office 365; their authorities are below the address `authorities`.
QJsonArray describeOnlineServices(const QString& authorities);

// The sign-in authorities of every Office 365.
class OnlineAuthorities final {
 public:
  // Applied where an authority's fault does not override them.
  struct Settings {
    Authority::Consent consent = Authority::Consent::AskUser;
    Authority::Generation generation = Authority::Generation::Resource;
    int lifetime = 3600;  // of a token, in seconds
  };

  // They are played by the server, which must outlive them.
  OnlineAuthorities(HttpServer& server, const Settings& settings);

  const Authority& faultless() const { return *m_authorities.front(); }
  bool isGranted(const QString& accessToken) const;

 private:
  std::vector<std::unique_ptr<Authority>> m_authorities;
};

}  // namespace sandbox
