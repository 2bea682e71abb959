#pragma once

#include <QByteArray>
#include <QList>
#include <QRecursiveMutex>
#include <functional>
#include <optional>

#include "adal/ADALExport.h"
#include "adal/ADError.h"
#include "adal/ADTokenCacheItem.h"

class ADTokenCacheDelegate;

// The tokens of all users, in the order in which they were first stored. Any thread.
class ADAL_EXPORT ADTokenCache final {
 public:
  struct Items {
    QList<ADTokenCacheItem> items;
    std::optional<ADError> error;
  };
  using Failure = std::optional<ADError>;  // nothing: it worked

  ADTokenCache();
  ~ADTokenCache();
  Q_DISABLE_COPY_MOVE(ADTokenCache)

  // The process's cache, kept by the settings' default storage delegate. Lives as long as the process.
  static ADTokenCache& defaultCache();

  // Not owned; null ends the storing elsewhere.
  void setDelegate(ADTokenCacheDelegate* delegate);

  // A snapshot; costs no copy of the items. Fails only from inside the storage delegate.
  [[nodiscard]] Items allItems();

  // Each item takes the place of its predecessor, or the end. All of them reach the storage in one write, so
  // that an old refresh token is never gone before its successor is there.
  [[nodiscard]] Failure addOrUpdateItems(const QList<ADTokenCacheItem>& items);
  [[nodiscard]] Failure replaceAllItems(const QList<ADTokenCacheItem>& items);

  QByteArray serialize();
  // Nothing empties the cache. Data that cannot be read is a failure and leaves the cache as it was.
  [[nodiscard]] Failure deserialize(const std::optional<QByteArray>& data);

  // Runs while no other thread uses the cache. Code that takes a lock of its own as well takes this one
  // first, as the calls of the storage delegate do.
  void exclusively(const std::function<void()>& action);

 private:
  [[nodiscard]] Failure write(const std::function<void()>& change);

  QRecursiveMutex m_mutex;
  ADTokenCacheDelegate* m_delegate = nullptr;
  bool m_insideDelegate = false;
  QList<ADTokenCacheItem> m_items;
  QByteArray m_serialized;  // of m_items as they are; null when not known
};
