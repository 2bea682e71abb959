#include "KZPreference/authentication/ADMivraCacheDelegate.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutexLocker>
#include <QSaveFile>

#include "adal/ADAuthenticationSettings.h"
#include "adal/ADTokenCache.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZTrace.h"

namespace {

constexpr qint32 statusDone = 0;
constexpr qint32 statusNotAvailable = -25291;
constexpr qint32 statusItemNotFound = -25300;
constexpr qint32 statusInteractionNotAllowed = -25308;

KZKeychainBackend::Item tokenCacheItem() {
  return {QStringLiteral("Brenn Mivra Meetings"), QStringLiteral("OutlookAccount(Online)")};
}

qint32 keychainStatus(KZKeychainBackend::Status status) {
  switch (status) {
    case KZKeychainBackend::Status::Done:
      return statusDone;
    case KZKeychainBackend::Status::NotFound:
      return statusItemNotFound;
    case KZKeychainBackend::Status::Locked:
      return statusInteractionNotAllowed;
    case KZKeychainBackend::Status::NoKeyring:
    case KZKeychainBackend::Status::Silent:
      return statusNotAvailable;
  }
  return statusNotAvailable;
}

}  // namespace

const QString& defaultSavePath() {
  static const QString path = QDir::home().filePath(QStringLiteral("Brenn Mivra Meetings.adalcache"));
  return path;
}

ADMivraCacheDelegate::ADMivraCacheDelegate() = default;
ADMivraCacheDelegate::~ADMivraCacheDelegate() = default;

void ADMivraCacheDelegate::load() {
  sharedInstance();
}

ADMivraCacheDelegate& ADMivraCacheDelegate::sharedInstance() {
  static ADMivraCacheDelegate* const instance = [] {
    auto* const created = new ADMivraCacheDelegate;
    created->readFromKeychain();
    ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(created);
    return created;
  }();
  return *instance;
}

void ADMivraCacheDelegate::willAccessCache(ADTokenCache& cache) {
  const QMutexLocker lock(&m_monitor);
  readFromKeychain();
  if (_data) fill(cache);
}

void ADMivraCacheDelegate::didAccessCache(ADTokenCache& /*cache*/) {}

void ADMivraCacheDelegate::willWriteCache(ADTokenCache& cache) {
  const QMutexLocker lock(&m_monitor);
  readFromKeychain();
  fill(cache);
}

void ADMivraCacheDelegate::didWriteCache(ADTokenCache& cache) {
  const QMutexLocker lock(&m_monitor);
  _data = cache.serialize();
  writeToKeychain();
}

void ADMivraCacheDelegate::fill(ADTokenCache& cache) {
  const ADTokenCache::Failure failure = cache.deserialize(_data);
  if (!failure) return;
  // The cache keeps its items, and the keychain its data until the next write. Traced later, because a host's
  // sink may look up a token, for which it needs the locks held here.
  static const char* const method = Q_FUNC_INFO;
  const auto trace = [text = failure->text()] {
    MVRNSErrorFuncTraceIMPL("KZPreference", method, "error:%@", text);
  };
  if (qApp) QMetaObject::invokeMethod(qApp, trace, Qt::QueuedConnection);
}

qint32 ADMivraCacheDelegate::readFromKeychain() {
  const QMutexLocker lock(&m_monitor);
  _data = KZKeyChainHandle::sharedInstance().getOutlookOnlineData();
  if (_data) return statusDone;
  const KZKeychainBackend::Answer answer =
      KZKeyChainHandle::sharedInstance().copyGenericPassword(tokenCacheItem());
  if (answer.status == KZKeychainBackend::Status::Done) _data = answer.secret;
  return keychainStatus(answer.status);
}

qint32 ADMivraCacheDelegate::writeToKeychain() {
  const QMutexLocker lock(&m_monitor);
  if (!_data) return statusItemNotFound;
  KZKeyChainHandle::sharedInstance().commitOutlookOnlineData(*_data);
  return statusDone;
}

bool ADMivraCacheDelegate::clearCacheWithError(OSStatusError* error) {
  bool isCleared = false;
  ADTokenCache& cache = ADTokenCache::defaultCache();
  // Locks the cache first, as the cache's calls to its delegate do; another order could deadlock.
  cache.exclusively([&] {
    const QMutexLocker lock(&m_monitor);
    if (cache.deserialize(std::nullopt)) return;
    isCleared = deleteItem(error);
  });
  return isCleared;
}

bool ADMivraCacheDelegate::deleteItem(OSStatusError* error) {
  const qint32 status =
      keychainStatus(KZKeyChainHandle::sharedInstance().deleteGenericPassword(tokenCacheItem()));
  if (status == statusDone || status == statusItemNotFound) return true;
  if (error != nullptr) *error = {QStringLiteral("NSOSStatusErrorDomain"), status};
  return false;
}

bool ADMivraCacheDelegate::readFromFile(const QString& path) {
  const QMutexLocker lock(&m_monitor);
  _data.reset();
  QFile file(path);
  // A pipe could be waited for without end.
  if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) return false;
  const QByteArray contents = file.readAll();
  if (file.error() != QFileDevice::NoError) return false;
  _data = contents;
  return true;
}

bool ADMivraCacheDelegate::writeToFile(const QString& path) {
  const QMutexLocker lock(&m_monitor);
  QSaveFile file(path);
  const bool isOpen = _data && file.open(QIODevice::WriteOnly) &&
                      file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  if (isOpen && file.write(*_data) == _data->size() && file.commit()) return true;
  qWarning("Failed to write cache to %s!", qUtf8Printable(path));
  return false;
}

std::unique_ptr<ADMivraCacheDelegate> ADMivraCacheDelegate::copyWithZone() const {
  const QMutexLocker lock(&m_monitor);
  std::unique_ptr<ADMivraCacheDelegate> copy(new ADMivraCacheDelegate);
  copy->_data = _data;
  return copy;
}
