#include "host/KZUtility/PropertyListFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <cerrno>

#include "host/KZUtility/AtomicFile.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/PropertyList.h"

namespace {

const QString kPropertyListName = QStringLiteral("preferences.plist");
constexpr qint64 kLargestPropertyList = 8 * 1024 * 1024;
constexpr int kMostSetAside = 1000;

void traceStoreError(const QString& path, const QString& reason) {
  MVRNSErrorFuncTraceIMPL("KZUtility", Q_FUNC_INFO, "settings store %@: %@", path, reason);
}

KZSaveProblem problemOf(int error) {
  switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return KZSaveProblem::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return KZSaveProblem::NotAllowed;
    default:
      return KZSaveProblem::Failed;
  }
}

}  // namespace

PropertyListFile::PropertyListFile(const QString& folder) : m_folder(folder) {}

PropertyListFile::~PropertyListFile() {
  if (m_lock >= 0) ::close(m_lock);
}

QString PropertyListFile::path() const {
  return QDir(m_folder).filePath(kPropertyListName);
}

// Locks the folder itself: that needs no disk space, leaves no lock file, and ends with the process.
bool PropertyListFile::lock() {
  makeFolder();
  m_lock = ::open(QFile::encodeName(m_folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  return m_lock < 0 || ::flock(m_lock, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

Dictionary PropertyListFile::read() {
  removeAbandonedFiles(m_folder, kPropertyListName);
  const QByteArray name = QFile::encodeName(path());
  struct stat state = {};
  if (::lstat(name.constData(), &state) != 0) {
    if (errno != ENOENT) fail(KZSaveProblem::FileUnusable, qt_error_string(errno));
    return {};
  }
  Dictionary values;
  const bool isOurs = state.st_uid == ::geteuid();
  const QString reason = !isOurs                   ? QStringLiteral("another user's file")
                         : !S_ISREG(state.st_mode) ? QStringLiteral("not a regular file")
                                                   : load(name, &values);
  if (reason.isNull()) return values;
  if (isOurs && setAside()) {
    traceStoreError(path(), reason + QStringLiteral("; it was set aside"));
  } else {
    fail(KZSaveProblem::FileUnusable, reason + QStringLiteral("; settings last for this run only"));
  }
  return {};
}

void PropertyListFile::write(const Dictionary& values) {
  if (m_problem == KZSaveProblem::FileUnusable) return;
  const PropertyListXml list = xmlOfPropertyList(values);
  if (m_isExact && !list.isExact)
    traceStoreError(path(), QStringLiteral("a value was written without what XML cannot carry"));
  m_isExact = list.isExact;
  if (list.xml.size() > kLargestPropertyList)
    return fail(KZSaveProblem::Failed, QStringLiteral("too large to be written"));
  makeFolder();
  const int error = replaceFile(m_folder, kPropertyListName, list.xml);
  if (error != 0) return fail(problemOf(error), qt_error_string(error));
  m_problem = KZSaveProblem::None;
}

// A failure is reported by the first write.
void PropertyListFile::makeFolder() const {
  const QFileInfo folder(m_folder);
  if (folder.exists()) return;
  QDir().mkpath(folder.absolutePath());
  QDir().mkdir(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QString PropertyListFile::load(const QByteArray& name, Dictionary* values) {
  const int descriptor = ::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (descriptor < 0) return qt_error_string(errno);
  QFile file;
  if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) return file.errorString();
  const QByteArray xml = file.read(kLargestPropertyList + 1);
  if (file.error() != QFileDevice::NoError) return file.errorString();
  if (xml.size() > kLargestPropertyList) return QStringLiteral("too large");
  std::optional<Dictionary> read = parsedPropertyList(xml);
  if (!read) return QStringLiteral("damaged");
  *values = *std::move(read);
  return {};
}

bool PropertyListFile::setAside() {
  const QString stamped = path() + QStringLiteral(".damaged-") +
                          QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
  for (int attempt = 0; attempt < kMostSetAside; ++attempt) {
    const QString aside = attempt == 0 ? stamped : stamped + u'-' + QString::number(attempt);
    // A file that was set aside in the same second is not replaced.
    const int status = ::renameat2(AT_FDCWD, QFile::encodeName(path()).constData(), AT_FDCWD,
                                   QFile::encodeName(aside).constData(), RENAME_NOREPLACE);
    if (status == 0) {
      m_setAsidePath = aside;
      return true;
    }
    if (errno != EEXIST) return false;
  }
  return false;
}

void PropertyListFile::fail(KZSaveProblem problem, const QString& reason) {
  m_problem = problem;
  traceStoreError(path(), reason);
}
