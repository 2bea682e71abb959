#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "sandbox/Authority.h"

namespace sandbox {

// The authorities of every Office 365 to try.
class OnlineAuthorities final {
 public:
  // How those behave that have no fault in it.
  struct Manner {
    Authority::Consent consent = Authority::Consent::AskUser;
    Authority::Generation generation = Authority::Generation::Resource;
    int lifetime = 3600;  // of a token, in seconds
  };

  // They answer at the server, which must outlive them.
  OnlineAuthorities(HttpServer& server, const Manner& manner);

  // The one that has no fault.
  const Authority& faultless() const { return *m_authorities.front(); }
  bool isGranted(const QString& accessToken) const;

 private:
  std::vector<std::unique_ptr<Authority>> m_authorities;
};

}  // namespace sandbox
