#include "host/KZUtility/PropertyListFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <cerrno>

#include "host/KZUtility/KZTrace.h"

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

bool PropertyListFile::Stamp::operator==(const Stamp& other) const {
  return device == other.device && inode == other.inode && size == other.size &&
         modified.tv_sec == other.modified.tv_sec && modified.tv_nsec == other.modified.tv_nsec;
}

PropertyListFile::PropertyListFile(const QString& folder) : m_folder(folder), m_document(plist_new_dict()) {}

QString PropertyListFile::path() const {
  return QDir(m_folder).filePath(kPropertyListName);
}

// The folder itself: that needs no room on the disk, leaves nothing behind, and ends with the process.
bool PropertyListFile::lock() {
  makeFolder();
  m_lock = Descriptor(::open(QFile::encodeName(m_folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  return !m_lock.isOpen() || ::flock(m_lock.get(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

Dictionary PropertyListFile::read() {
  removeAbandonedFiles(m_folder, kPropertyListName);
  load();
  return valueOfPropertyList(m_document.get()).toMap();
}

void PropertyListFile::set(const QString& key, const QVariant& value) {
  m_pending.insert(key, value);
}

void PropertyListFile::flush() {
  if (m_pending.isEmpty() || m_problem == KZSaveProblem::FileUnusable) return;
  // Another process has written: its keys are taken over. When the file is gone, all of ours goes back.
  const std::optional<Stamp> found = stamp();
  if (found && found != m_seen) load();
  if (m_problem == KZSaveProblem::FileUnusable) return;
  applyPending();
  const QByteArray xml = xmlOfPropertyList(m_document.get());
  if (xml.size() > kLargestPropertyList)
    return fail(KZSaveProblem::Failed, QStringLiteral("too large to be written"));
  makeFolder();
  const int error = replaceFile(m_folder, kPropertyListName, xml);
  if (error != 0) return fail(problemOf(error), qt_error_string(error));
  m_problem = KZSaveProblem::None;
  m_pending.clear();
  m_seen = stamp();
}

void PropertyListFile::makeFolder() const {
  const QFileInfo folder(m_folder);
  if (folder.exists()) return;
  // A folder that cannot be made shows at the first write.
  QDir().mkpath(folder.absolutePath());
  QDir().mkdir(m_folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

std::optional<PropertyListFile::Stamp> PropertyListFile::stamp() const {
  struct stat state = {};
  if (::lstat(QFile::encodeName(path()).constData(), &state) != 0) return std::nullopt;
  return Stamp{state.st_dev, state.st_ino, state.st_size, state.st_mtim};
}

void PropertyListFile::load() {
  const QByteArray name = QFile::encodeName(path());
  struct stat state = {};
  if (::lstat(name.constData(), &state) != 0) {
    if (errno == ENOENT) return;
    return fail(KZSaveProblem::FileUnusable, qt_error_string(errno));
  }
  if (!S_ISREG(state.st_mode)) return reject(QStringLiteral("not a regular file"), state.st_uid);
  if (state.st_uid != ::geteuid()) return reject(QStringLiteral("another user's file"), state.st_uid);
  const int descriptor = ::open(name.constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  const QString reason = descriptor < 0 ? qt_error_string(errno) : loadFrom(descriptor);
  if (!reason.isNull()) return reject(reason, state.st_uid);
  m_seen = Stamp{state.st_dev, state.st_ino, state.st_size, state.st_mtim};
}

QString PropertyListFile::loadFrom(int descriptor) {
  QFile file;
  if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) return file.errorString();
  const QByteArray xml = file.read(kLargestPropertyList + 1);
  if (file.error() != QFileDevice::NoError) return file.errorString();
  if (xml.size() > kLargestPropertyList) return QStringLiteral("too large");
  PropertyList document = parsedPropertyList(xml);
  if (!document) return QStringLiteral("damaged");
  m_document = std::move(document);
  return {};
}

void PropertyListFile::reject(const QString& reason, uid_t owner) {
  const bool isAside = owner == ::geteuid() && setAside();
  if (isAside) return traceStoreError(path(), reason + QStringLiteral("; it was set aside"));
  fail(KZSaveProblem::FileUnusable, reason + QStringLiteral("; settings last for this run only"));
}

bool PropertyListFile::setAside() {
  const QString stamped = path() + QStringLiteral(".damaged-") +
                          QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
  for (int attempt = 0; attempt < kMostSetAside; ++attempt) {
    const QString aside = attempt == 0 ? stamped : stamped + u'-' + QString::number(attempt);
    // Nothing that was set aside before is lost to a second one of the same second.
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

void PropertyListFile::applyPending() {
  bool isExact = true;
  for (auto entry = m_pending.cbegin(); entry != m_pending.cend(); ++entry) {
    const QByteArray key = propertyListKey(entry.key(), &isExact);
    PropertyList node = propertyListOf(entry.value(), &isExact);
    if (node) {
      plist_dict_set_item(m_document.get(), key.constData(), node.release());
    } else {
      plist_dict_remove_item(m_document.get(), key.constData());
    }
  }
  if (!isExact) traceStoreError(path(), QStringLiteral("a value was written without what XML cannot carry"));
}
