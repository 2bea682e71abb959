#pragma once

#include <QByteArray>
#include <QSslConfiguration>
#include <QString>
#include <QStringList>
#include <optional>

namespace sandbox {

// A certificate authority, created with the openssl program. Its key and those of its servers are in memory
// only, so that not even a killed sandbox leaves one behind.
class Certificates final {
 public:
  Certificates();

  // False where the program is missing or failed.
  bool isUsable() const { return !m_authority.isEmpty(); }
  QString authority() const { return m_authority; }  // PEM

  // For a server of these host names; `*` in `*.example` matches one label. Nothing when it cannot be made.
  std::optional<QSslConfiguration> serverOf(const QStringList& names) const;

 private:
  QByteArray m_keyAndCertificate;
  QString m_authority;
};

}  // namespace sandbox
