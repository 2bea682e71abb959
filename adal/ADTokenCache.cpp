#include "adal/ADTokenCache.h"

#include <QMutexLocker>
#include <QScopedValueRollback>
#include <algorithm>
#include <mutex>

#include "adal/ADTokenCacheDelegate.h"

namespace {

ADError cacheBusy() {
  return {ADErrorCode::CacheBusy, QStringLiteral("another access is not done")};
}

bool isSameData(const QByteArray& left, const QByteArray& right) {
  if (left.size() != right.size()) return false;
  return left.constData() == right.constData() || left == right;
}

QList<ADTokenCacheItem> withoutSuperseded(const QList<ADTokenCacheItem>& items,
                                          const ADTokenCacheItem& refresh, const ADTokenCacheItem& access) {
  QList<ADTokenCacheItem> kept = items;
  kept.removeIf([&access](const ADTokenCacheItem& item) {
    return !item.isMultiResourceRefreshToken() && item.resource == access.resource &&
           item.isOfSameUser(access);
  });
  const QList<ADTokenCacheItem> remaining = kept;
  const auto isNeeded = [&remaining](const ADTokenCacheItem& token) {
    return std::any_of(remaining.begin(), remaining.end(), [&token](const ADTokenCacheItem& item) {
      return !item.isMultiResourceRefreshToken() && item.isOfSameGrant(token);
    });
  };
  kept.removeIf([&](const ADTokenCacheItem& item) {
    return item.isMultiResourceRefreshToken() && item.isOfSameUser(access) &&
           (item.isSameEntry(refresh) || !isNeeded(item));
  });
  return kept;
}

}  // namespace

ADTokenCache::ADTokenCache() = default;
ADTokenCache::~ADTokenCache() = default;

ADTokenCache& ADTokenCache::defaultCache() {
  // Never destroyed: delegates and threads may use it until the process ends.
  static ADTokenCache* const cache = new ADTokenCache;
  return *cache;
}

void ADTokenCache::setDelegate(ADTokenCacheDelegate* delegate) {
  const QMutexLocker lock(&m_mutex);
  m_delegate = delegate;
}

ADTokenCache::Items ADTokenCache::allItems() {
  const std::unique_lock lock(m_mutex, longestWait);
  if (!lock || m_insideDelegate) return {{}, cacheBusy()};
  if (m_delegate == nullptr) return {m_items, {}};
  const QScopedValueRollback inside(m_insideDelegate, true);
  m_delegate->willAccessCache(*this);
  const QList<ADTokenCacheItem> items = m_items;
  m_delegate->didAccessCache(*this);
  return {items, {}};
}

ADTokenCache::Failure ADTokenCache::addOrUpdateItems(const QList<ADTokenCacheItem>& items) {
  return change([&](QList<ADTokenCacheItem>& stored) {
    for (const ADTokenCacheItem& item : items) addOrUpdate(stored, item);
    return true;
  });
}

ADTokenCache::Failure ADTokenCache::addSignedInItems(const QList<ADTokenCacheItem>& items) {
  return change([&](QList<ADTokenCacheItem>& stored) {
    const ADTokenCacheItem& access = items.last();
    const QList<ADTokenCacheItem> candidates = items + stored;
    const auto refresh =
        std::find_if(candidates.begin(), candidates.end(), [&access](const ADTokenCacheItem& item) {
          return item.isMultiResourceRefreshToken() && item.isOfSameGrant(access);
        });
    if (refresh == candidates.end()) {
      addOrUpdate(stored, access);
    } else {
      stored = QList{*refresh, access} + withoutSuperseded(stored, *refresh, access);
    }
    return true;
  });
}

ADTokenCache::Failure ADTokenCache::replaceAllItems(const QList<ADTokenCacheItem>& items) {
  return change([&](QList<ADTokenCacheItem>& stored) {
    stored = items;
    return true;
  });
}

ADTokenCache::Failure ADTokenCache::change(const Change& change) {
  const QMutexLocker lock(&m_mutex);
  if (m_insideDelegate) return cacheBusy();
  const QScopedValueRollback inside(m_insideDelegate, true);
  if (m_delegate != nullptr) m_delegate->willWriteCache(*this);
  if (!change(m_items)) return {};
  m_serialized = {};
  if (m_delegate != nullptr) m_delegate->didWriteCache(*this);
  return {};
}

QByteArray ADTokenCache::serialize() {
  const QMutexLocker lock(&m_mutex);
  if (m_serialized.isNull()) m_serialized = serializedTokens(m_items);
  return m_serialized;
}

ADTokenCache::Failure ADTokenCache::deserialize(const std::optional<QByteArray>& data) {
  const QMutexLocker lock(&m_mutex);
  if (!data) {
    m_items.clear();
    m_serialized = {};
    return {};
  }
  // The storage is read before every access and has seldom changed.
  if (!m_serialized.isNull() && isSameData(*data, m_serialized)) return {};
  std::optional<QList<ADTokenCacheItem>> items = deserializedTokens(*data);
  if (!items) return ADError{ADErrorCode::CacheFormat, QStringLiteral("not written by this version")};
  m_items = *std::move(items);
  m_serialized = *data;
  return {};
}

void ADTokenCache::exclusively(const std::function<void()>& action) {
  const QMutexLocker lock(&m_mutex);
  action();
}
