#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QRecursiveMutex>
#include <QString>
#include <memory>
#include <optional>

#include "adal/ADTokenCacheDelegate.h"
#include "host/KZFoundation/KZTokenCacheStorage.h"

// The path for a token cache in a file; the plug-in itself uses no file.
const QString& defaultSavePath();

// Stores the default token cache as one keychain item, read before every access and written after every
// change. Any thread.
class ADMivraCacheDelegate final : public ADTokenCacheDelegate {
 public:
  // Call once when the plug-in is loaded, before any token request.
  static void load();
  static ADMivraCacheDelegate& sharedInstance();
  ~ADMivraCacheDelegate() override;

  void willAccessCache(ADTokenCache& cache) override;
  void didAccessCache(ADTokenCache& cache) override;
  void willWriteCache(ADTokenCache& cache) override;
  void didWriteCache(ADTokenCache& cache) override;

  // The keychain's status; 0 for success.
  qint32 readFromKeychain();
  qint32 writeToKeychain();

  // Empties the default cache, then deletes the item. True only when the keychain has confirmed that it has
  // none; otherwise it is deleted as soon as the keychain answers.
  [[nodiscard]] bool clearCacheWithError(OSStatusError* error);

  // Whether the file was read or written. A file that cannot be read leaves no data.
  bool readFromFile(const QString& path);
  bool writeToFile(const QString& path);

  std::unique_ptr<ADMivraCacheDelegate> copyWithZone() const;

 private:
  ADMivraCacheDelegate();

  void fill(ADTokenCache& cache);
  bool deleteItem(OSStatusError* error);

  mutable QRecursiveMutex m_monitor;
  std::optional<QByteArray> _data;
  QDateTime _lastUpdated;
};
