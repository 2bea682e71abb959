#include "sandbox/Certificates.h"

#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>

#include "sandbox/MemoryFile.h"

namespace sandbox {

namespace {

// A new key and its certificate, PEM; empty when the program is missing or failed.
QByteArray newCertificate(const QStringList& request) {
  QProcess process;
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start("openssl",
                QStringList{"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
                            "-nodes", "-keyout", "/dev/stdout", "-out", "/dev/stdout", "-days", "7"} +
                    request);
  const bool isMade =
      process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
  return isMade ? process.readAllStandardOutput() : QByteArray();
}

}  // namespace

Certificates::Certificates() : m_keyAndCertificate(newCertificate({"-subj", "/CN=Sandbox certificates"})) {
  m_authority = QString::fromLatin1(QSslCertificate(m_keyAndCertificate).toPem());
}

std::optional<QSslConfiguration> Certificates::serverOf(const QStringList& names) const {
  const MemoryFile authority(m_keyAndCertificate);
  if (!isUsable() || authority.path().isEmpty()) return {};
  const QByteArray made = newCertificate(
      {"-CA", authority.path(), "-CAkey", authority.path(), "-subj", "/CN=" + names.value(0), "-addext",
       "subjectAltName=DNS:" + names.join(",DNS:"), "-addext", "basicConstraints=critical,CA:FALSE"});
  if (made.isEmpty()) return {};
  QSslConfiguration configuration;
  configuration.setLocalCertificate(QSslCertificate(made));
  configuration.setPrivateKey(QSslKey(made, QSsl::Ec));
  configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
  return configuration;
}

}  // namespace sandbox
