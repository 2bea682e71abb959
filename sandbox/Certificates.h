#pragma once

#include <QSslConfiguration>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <optional>

namespace sandbox {

// An authority of certificates that lives as long as this object, made with the openssl program.
class Certificates final {
 public:
  Certificates();

  // False where the program is missing or failed.
  bool isUsable() const { return !m_authority.isEmpty(); }
  QString authority() const { return m_authority; }  // PEM

  // For a server of these host names; `*.example` stands for one label. Nothing when it cannot be made.
  std::optional<QSslConfiguration> serverOf(const QStringList& names) const;

 private:
  bool run(const QStringList& arguments) const;
  QString file(const QString& name) const { return m_folder.filePath(name); }

  QTemporaryDir m_folder;
  QString m_authority;
};

}  // namespace sandbox
