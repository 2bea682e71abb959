#include "companion/services/UpdatePackageFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>

namespace {

constexpr qint64 kAbandonedPackageSeconds = 600;

QString packageName(const UpdateManifest& manifest) {
  return QStringLiteral("brenn-mivra-meetings-%1.deb").arg(manifest.version.toString());
}

// What a process that died in the middle of a download left behind.
void removeAbandonedPackages(const QString& folder) {
  const QDateTime limit = QDateTime::currentDateTimeUtc().addSecs(-kAbandonedPackageSeconds);
  const QFileInfoList files =
      QDir(folder).entryInfoList({QStringLiteral("brenn-mivra-meetings-*.deb.??????")}, QDir::Files);
  for (const QFileInfo& file : files) {
    if (file.lastModified() < limit) QFile::remove(file.filePath());
  }
}

}  // namespace

UpdatePackageFile::UpdatePackageFile(const QString& folder, const UpdateManifest& manifest)
    : m_manifest(manifest), m_folder(folder), m_path(QDir(folder).filePath(packageName(manifest))) {}

bool UpdatePackageFile::open() {
  QDir().mkpath(m_folder);
  removeAbandonedPackages(m_folder);
  m_file = std::make_unique<QSaveFile>(m_path);
  return m_file->open(QIODevice::WriteOnly | QIODevice::Unbuffered) || failOnDisk();
}

bool UpdatePackageFile::write(const QByteArray& piece) {
  m_hash.addData(piece);
  m_written += piece.size();
  return m_file->write(piece) == piece.size() || failOnDisk();
}

bool UpdatePackageFile::finish() {
  if (m_written != m_manifest.bytes || m_hash.result() != m_manifest.sha256) {
    m_file.reset();
    m_failure = QStringLiteral(
        "The update was damaged on its way and was not kept. Check for updates again, or tell your "
        "administrator.");
    return false;
  }
  return m_file->commit() || failOnDisk();
}

bool UpdatePackageFile::failOnDisk() {
  m_failure = QStringLiteral("The update cannot be kept in %1: %2. Free some space there and check again.")
                  .arg(QDir::toNativeSeparators(m_folder), m_file->errorString());
  m_file.reset();
  return false;
}
