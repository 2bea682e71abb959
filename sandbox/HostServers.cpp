#include "sandbox/HostServers.h"

namespace sandbox {

bool HostServers::listen(const QStringList& names) {
  const auto ours = m_certificates.serverOf(names);
  const auto others = m_certificates.serverOf({QStringLiteral("another.example")});
  if (!ours || !others) return false;
  m_encrypted = std::make_unique<HttpServer>(*ours);
  m_otherName = std::make_unique<HttpServer>(*others);
  return m_plain.listen() && m_encrypted->listen() && m_otherName->listen();
}

}  // namespace sandbox
