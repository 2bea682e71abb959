#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace sandbox {

// A file that is in no folder and goes with its process. Programs that this process starts can read it.
class MemoryFile final {
 public:
  explicit MemoryFile(const QByteArray& content);

  QString path() const;  // empty when there is no such file

 private:
  QFile m_file;
};

}  // namespace sandbox
