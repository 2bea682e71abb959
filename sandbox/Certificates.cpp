#include "sandbox/Certificates.h"

#include <sys/mman.h>
#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>

namespace sandbox {

namespace {

// A file without a folder that ends with its process. Programs that this process starts can read it.
class MemoryFile final {
 public:
  explicit MemoryFile(const QByteArray& content) {
    const int descriptor = ::memfd_create("sandbox", MFD_CLOEXEC);
    if (descriptor < 0) return;
    const bool isOpen = m_file.open(descriptor, QIODevice::WriteOnly, QFile::AutoCloseHandle);
    if (isOpen && (m_file.write(content) != content.size() || !m_file.flush())) m_file.close();
  }

  // Empty when there is no such file.
  QString path() const {
    if (!m_file.isOpen()) return {};
    return QStringLiteral("/proc/%1/fd/%2").arg(QCoreApplication::applicationPid()).arg(m_file.handle());
  }

 private:
  QFile m_file;
};

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
