#include "host/KZUtility/AtomicFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <cerrno>
#include <cstdlib>

namespace {

constexpr qint64 kAbandonedAfterSeconds = 60;

class Descriptor final {
 public:
  explicit Descriptor(int descriptor) : m_descriptor(descriptor) {}
  ~Descriptor() {
    if (m_descriptor >= 0) ::close(m_descriptor);
  }
  Q_DISABLE_COPY_MOVE(Descriptor)

  int get() const { return m_descriptor; }
  bool isOpen() const { return m_descriptor >= 0; }

 private:
  int m_descriptor;
};

bool writeAll(int descriptor, QByteArrayView bytes) {
  while (!bytes.isEmpty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()));
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes = bytes.sliced(written);
  }
  return true;
}

// A failure is ignored: some file systems cannot sync a folder, and the file is in place.
void syncFolder(const QString& folder) {
  const Descriptor place(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (place.isOpen()) (void)::fsync(place.get());
}

QString temporaryPrefix(const QString& name) {
  return u'.' + name + u'.';
}

}  // namespace

int replaceFile(const QString& folder, const QString& name, const QByteArray& bytes) {
  QByteArray temporary = QFile::encodeName(QDir(folder).filePath(temporaryPrefix(name))) + "XXXXXX";
  const Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.isOpen()) return errno;
  const QByteArray target = QFile::encodeName(QDir(folder).filePath(name));
  const bool isFirst = ::access(target.constData(), F_OK) != 0;
  const bool isReplaced = writeAll(file.get(), bytes) && ::fsync(file.get()) == 0 &&
                          ::rename(temporary.constData(), target.constData()) == 0;
  if (!isReplaced) {
    const int reason = errno;
    ::unlink(temporary.constData());
    return reason;
  }
  // The folder is synced for a new file only, whose name could be lost in a power cut. A replaced file is the
  // old or the new one then, both complete, and syncing at every change would double its time.
  if (isFirst) syncFolder(folder);
  return 0;
}

void removeAbandonedFiles(const QString& folder, const QString& name) {
  const QFileInfoList files = QDir(folder).entryInfoList({temporaryPrefix(name) + QStringLiteral("??????")},
                                                         QDir::Files | QDir::Hidden | QDir::NoSymLinks);
  const QDateTime limit = QDateTime::currentDateTimeUtc().addSecs(-kAbandonedAfterSeconds);
  for (const QFileInfo& file : files) {
    if (file.lastModified() < limit) QFile::remove(file.filePath());
  }
}
