#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "sandbox/Certificates.h"
#include "sandbox/HttpServer.h"

namespace sandbox {

// The servers behind all host names that one service plays: an unencrypted one, an encrypted one that may
// call itself by those names, and one that shows a certificate of another name.
class HostServers final {
 public:
  // `*.example` stands for one label. False where there is no port or no certificate; nothing may be asked
  // then. Set handlers afterwards, before events run.
  [[nodiscard]] bool listen(const QStringList& names);

  HttpServer& plain() { return m_plain; }
  HttpServer& encrypted() { return *m_encrypted; }
  HttpServer& otherName() { return *m_otherName; }

  QUrl plainUrl() const { return m_plain.url(); }
  int plainPort() const { return m_plain.url().port(); }
  int encryptedPort() const { return m_encrypted->url().port(); }
  int otherNamePort() const { return m_otherName->url().port(); }
  QString certificates() const { return m_certificates.authority(); }  // PEM

 private:
  Certificates m_certificates;
  HttpServer m_plain;
  std::unique_ptr<HttpServer> m_encrypted;
  std::unique_ptr<HttpServer> m_otherName;
};

}  // namespace sandbox
