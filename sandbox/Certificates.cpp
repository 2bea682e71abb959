#include "sandbox/Certificates.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslKey>

namespace sandbox {

namespace {

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList newKey(const QString& file) {
  return {"-newkey", "ec",    "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes", "-keyout",
          file,      "-days", "7"};
}

}  // namespace

Certificates::Certificates() {
  if (!m_folder.isValid()) return;
  const QStringList request{"req", "-x509", "-subj", "/CN=Sandbox certificates", "-out", file("ca.pem")};
  if (run(request + newKey(file("ca.key")))) m_authority = QString::fromLatin1(contentOf(file("ca.pem")));
}

std::optional<QSslConfiguration> Certificates::serverOf(const QStringList& names) const {
  const QStringList request{"req",     "-x509",
                            "-CA",     file("ca.pem"),
                            "-CAkey",  file("ca.key"),
                            "-subj",   "/CN=" + names.value(0),
                            "-addext", "subjectAltName=DNS:" + names.join(",DNS:"),
                            "-addext", "basicConstraints=critical,CA:FALSE",
                            "-out",    file("server.pem")};
  if (!isUsable() || !run(request + newKey(file("server.key")))) return {};
  QSslConfiguration configuration;
  configuration.setLocalCertificate(QSslCertificate(contentOf(file("server.pem"))));
  configuration.setPrivateKey(QSslKey(contentOf(file("server.key")), QSsl::Ec));
  configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
  return configuration;
}

bool Certificates::run(const QStringList& arguments) const {
  QProcess process;
  process.setStandardErrorFile(QProcess::nullDevice());
  process.start("openssl", arguments);
  return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

}  // namespace sandbox
