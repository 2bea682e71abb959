#include "companion/record/RecordFile.h"

bool RecordFile::open(const QString& path) {
  m_file.setFileName(path);
  constexpr auto kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;
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
