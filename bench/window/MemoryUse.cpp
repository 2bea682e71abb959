#include "bench/window/MemoryUse.h"

#include <QByteArray>
#include <QFile>

namespace {

// The number in the file's line that begins with the key.
qint64 kernelNumber(const char* path, const char* key) {
  QFile file(QString::fromLatin1(path));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  const QByteArray text = file.readAll();
  for (const QByteArray& line : text.split('\n')) {
    if (line.startsWith(key)) return line.mid(qstrlen(key)).trimmed().split(' ').first().toLongLong();
  }
  return 0;
}

}  // namespace

MemoryUse MemoryUse::now() {
  constexpr const char* rollup = "/proc/self/smaps_rollup";
  return {.resident = kernelNumber(rollup, "Rss:"),
          .mostResident = kernelNumber("/proc/self/status", "VmHWM:"),
          .proportional = kernelNumber(rollup, "Pss:"),
          .dirty = kernelNumber(rollup, "Private_Dirty:")};
}
