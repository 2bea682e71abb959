#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QRecursiveMutex>
#include <QString>
#include <memory>
#include <optional>

#include "adal/ADTokenCacheDelegate.h"

// Where the host may put the token cache as a file; nothing here uses it by itself.
const QString& defaultSavePath();

// What the keychain answered instead of doing it.
struct OSStatusError {
  QString domain;
  qint32 code = 0;
};

// Keeps the default token cache as one item of the keychain: read before every access, rewritten after every
// change. Any thread.
class ADMivraCacheDelegate final : public ADTokenCacheDelegate {
 public:
  // To be called once when the component's code is loaded, before any token request.
  static void load();
  static ADMivraCacheDelegate& sharedInstance();
  ~ADMivraCacheDelegate() override;

  void willAccessCache(ADTokenCache& cache) override;
  void didAccessCache(ADTokenCache& cache) override;
  void willWriteCache(ADTokenCache& cache) override;
  void didWriteCache(ADTokenCache& cache) override;

  // The keychain's status: 0, or why it has nothing for us.
  qint32 readFromKeychain();
  qint32 writeToKeychain();

  // Empties the default cache, then deletes the item; one that is not there counts as deleted.
  [[nodiscard]] bool clearCacheWithError(OSStatusError* error);

  void readFromFile(const QString& path);
  void writeToFile(const QString& path);

  std::unique_ptr<ADMivraCacheDelegate> copyWithZone() const;

 private:
  ADMivraCacheDelegate();

  void fill(ADTokenCache& cache);
  bool deleteItem(OSStatusError* error);

  mutable QRecursiveMutex m_monitor;
  std::optional<QByteArray> _data;
  QDateTime _lastUpdated;
};
