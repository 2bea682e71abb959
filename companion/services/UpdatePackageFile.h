#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QSaveFile>
#include <QString>
#include <memory>

#include "companion/services/UpdateManifest.h"

// A package on its way to the disk: it gets its name only when it is whole and right, and leaves nothing
// behind otherwise.
class UpdatePackageFile final {
 public:
  UpdatePackageFile(const QString& folder, const UpdateManifest& manifest);

  // False when the disk does not take it; the reason is in `failure`.
  [[nodiscard]] bool open();
  [[nodiscard]] bool write(const QByteArray& piece);
  // False when it is not the package of the manifest, too; nothing has the name then.
  [[nodiscard]] bool finish();

  QString path() const { return m_path; }
  qint64 written() const { return m_written; }
  const QString& failure() const { return m_failure; }  // a sentence for the user; empty: none

 private:
  bool failOnDisk();

  const UpdateManifest m_manifest;
  const QString m_folder;
  const QString m_path;
  std::unique_ptr<QSaveFile> m_file;
  QCryptographicHash m_hash{QCryptographicHash::Sha256};
  qint64 m_written = 0;
  QString m_failure;
};
