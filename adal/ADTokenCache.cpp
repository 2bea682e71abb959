#include "adal/ADTokenCache.h"

#include <QMutexLocker>
#include <QScopedValueRollback>
#include <algorithm>

#include "adal/ADTokenCacheDelegate.h"

namespace {

ADError cacheBusy() {
  return {ADErrorCode::CacheBusy, QStringLiteral("asked from inside its storage delegate")};
}

bool isSameData(const QByteArray& left, const QByteArray& right) {
  if (left.size() != right.size()) return false;
  return left.constData() == right.constData() || left == right;
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
  const QMutexLocker lock(&m_mutex);
  if (m_insideDelegate) return {{}, cacheBusy()};
  if (m_delegate == nullptr) return {m_items, {}};
  const QScopedValueRollback inside(m_insideDelegate, true);
  m_delegate->willAccessCache(*this);
  const QList<ADTokenCacheItem> items = m_items;
  m_delegate->didAccessCache(*this);
  return {items, {}};
}

ADTokenCache::Failure ADTokenCache::addOrUpdateItems(const QList<ADTokenCacheItem>& items) {
  return write([&] {
    for (const ADTokenCacheItem& item : items) {
      const auto known = std::find_if(m_items.begin(), m_items.end(),
                                      [&](const ADTokenCacheItem& other) { return item.isSameEntry(other); });
      if (known != m_items.end()) {
        *known = item;
      } else {
        m_items.append(item);
      }
    }
  });
}

ADTokenCache::Failure ADTokenCache::replaceAllItems(const QList<ADTokenCacheItem>& items) {
  return write([&] { m_items = items; });
}

ADTokenCache::Failure ADTokenCache::write(const std::function<void()>& change) {
  const QMutexLocker lock(&m_mutex);
  if (m_insideDelegate) return cacheBusy();
  const QScopedValueRollback inside(m_insideDelegate, true);
  if (m_delegate != nullptr) m_delegate->willWriteCache(*this);
  change();
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
