#pragma once

#include <QByteArray>
#include <QList>
#include <QRecursiveMutex>
#include <chrono>
#include <functional>
#include <optional>

#include "adal/ADALExport.h"
#include "adal/ADError.h"
#include "adal/ADTokenCacheItem.h"

class ADTokenCacheDelegate;

// The tokens of all users, in the order in which look-ups should prefer them. Any thread.
class ADAL_EXPORT ADTokenCache final {
 public:
  struct Items {
    QList<ADTokenCacheItem> items;
    std::optional<ADError> error;
  };
  using Failure = std::optional<ADError>;  // empty on success

  // For other threads' accesses. Whoever waits longer may be waited for by them: a storage delegate writes to
  // the log, and a log's receiver may wait for a thread that looks up a token.
  static constexpr std::chrono::seconds longestWait{2};
  // Changes the items. Returns whether they shall be written; if not, it has changed nothing.
  using Change = std::function<bool(QList<ADTokenCacheItem>& items)>;

  ADTokenCache();
  ~ADTokenCache();
  Q_DISABLE_COPY_MOVE(ADTokenCache)

  // The process's cache, stored by the settings' default storage delegate. Never destroyed.
  static ADTokenCache& defaultCache();

  // Not owned. Without one, the cache is in memory only.
  void setDelegate(ADTokenCacheDelegate* delegate);

  // A snapshot; costs no copy of the items. Fails from inside the storage delegate, and when another access
  // takes too long.
  [[nodiscard]] Items allItems();

  // One write, so that an old token is never removed before its successor is stored. `change` sees what is
  // stored now, and runs under the cache's lock.
  [[nodiscard]] Failure change(const Change& change);
  // Each item replaces the same entry, or is appended.
  [[nodiscard]] Failure addOrUpdateItems(const QList<ADTokenCacheItem>& items);
  // The items of a sign-in, the access token last. They become the first of all, in place of what they
  // supersede: the user's access tokens for the same resource, whichever the authority and client, and the
  // user's refresh tokens that no other access token needs. Without a refresh token nothing is superseded,
  // because look-ups need both.
  [[nodiscard]] Failure addSignedInItems(const QList<ADTokenCacheItem>& items);
  [[nodiscard]] Failure replaceAllItems(const QList<ADTokenCacheItem>& items);

  QByteArray serialize();
  // Without data, empties the cache. Data that cannot be read is a failure and leaves the cache unchanged.
  [[nodiscard]] Failure deserialize(const std::optional<QByteArray>& data);

  // Runs the action while no other thread uses the cache. Code that needs a lock of its own takes it inside,
  // in the order of the calls to the storage delegate.
  void exclusively(const std::function<void()>& action);

 private:
  QRecursiveMutex m_mutex;
  ADTokenCacheDelegate* m_delegate = nullptr;
  bool m_insideDelegate = false;
  QList<ADTokenCacheItem> m_items;
  QByteArray m_serialized;  // the stored form of m_items; null when unknown
};
