#include "sandbox/OnlineAuthorities.h"

#include <algorithm>

#include "sandbox/OnlineCases.h"

namespace sandbox {

OnlineAuthorities::OnlineAuthorities(HttpServer& server, const Manner& manner) {
  for (const OnlineCase& one : onlineCases()) {
    auto authority = std::make_unique<Authority>(server, QString::fromLatin1(one.path));
    authority->setConsent(one.isConsentRefused ? Authority::Consent::Refuse : manner.consent);
    authority->setGeneration(manner.generation);
    authority->setLifetime(one.lifetime == 0 ? manner.lifetime : one.lifetime);
    authority->setFault(one.fault);
    m_authorities.push_back(std::move(authority));
  }
}

bool OnlineAuthorities::isGranted(const QString& accessToken) const {
  return std::any_of(m_authorities.begin(), m_authorities.end(),
                     [&accessToken](const auto& authority) { return authority->isGranted(accessToken); });
}

}  // namespace sandbox
