#include "companion/record/RecordFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr auto kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

}  // namespace

bool RecordFile::open(const QString& path) {
  m_file.setFileName(path);
  const auto mode = QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered;
  const bool isOpen = m_file.open(mode, kOwnerOnly);
  // A device such as /dev/null has permissions of its own.
  if (isOpen && (m_file.isSequential() || m_file.setPermissions(kOwnerOnly))) return true;
  m_errorText = m_file.errorString();
  m_file.close();
  return false;
}

bool RecordFile::write(const QByteArray& line) {
  if (m_file.write(line + '\n') == line.size() + 1) {
    m_size += line.size() + 1;
    return true;
  }
  m_errorText = m_file.errorString();
  m_file.resize(m_size);
  return false;
}

bool RecordFile::finish(const std::function<QByteArray(const QByteArray& line)>& revised) {
  m_file.close();
  // What went to a device or a pipe is gone.
  if (!QFileInfo(path()).isFile()) return true;
  QFile written(path());
  if (!written.open(QIODevice::ReadOnly)) {
    m_errorText = written.errorString();
    return false;
  }
  const QByteArray before = written.readAll();
  QByteArray after;
  for (const QByteArray& line : before.split('\n')) after += revised(line) + '\n';
  after.chop(1);
  if (after == before) return true;
  QSaveFile file(path());
  const bool isSaved = file.open(QIODevice::WriteOnly) && file.setPermissions(kOwnerOnly) &&
                       file.write(after) == after.size() && file.commit();
  if (!isSaved) m_errorText = file.errorString();
  return isSaved;
}
