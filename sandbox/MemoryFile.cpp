#include "sandbox/MemoryFile.h"

#include <sys/mman.h>
#include <QCoreApplication>

namespace sandbox {

MemoryFile::MemoryFile(const QByteArray& content) {
  const int descriptor = ::memfd_create("sandbox", MFD_CLOEXEC);
  if (descriptor < 0) return;
  const bool isOpen = m_file.open(descriptor, QIODevice::WriteOnly, QFile::AutoCloseHandle);
  if (isOpen && (m_file.write(content) != content.size() || !m_file.flush())) m_file.close();
}

QString MemoryFile::path() const {
  if (!m_file.isOpen()) return {};
  return QStringLiteral("/proc/%1/fd/%2").arg(QCoreApplication::applicationPid()).arg(m_file.handle());
}

}  // namespace sandbox
