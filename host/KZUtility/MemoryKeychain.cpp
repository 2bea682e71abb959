#include "host/KZUtility/MemoryKeychain.h"

#include <QMutexLocker>

KZKeychainBackend::Answer MemoryKeychain::read(const Item& item) {
  const QMutexLocker lock(&m_mutex);
  const auto found = m_secrets.constFind({item.service, item.account});
  if (found == m_secrets.constEnd()) return {.status = Status::NotFound, .secret = {}};
  return {.status = Status::Done, .secret = *found};
}

KZKeychainBackend::Status MemoryKeychain::write(const Item& item, const QByteArray& secret) {
  const QMutexLocker lock(&m_mutex);
  m_secrets.insert({item.service, item.account}, secret);
  return Status::Done;
}

KZKeychainBackend::Status MemoryKeychain::remove(const Item& item) {
  const QMutexLocker lock(&m_mutex);
  return m_secrets.remove({item.service, item.account}) > 0 ? Status::Done : Status::NotFound;
}

void MemoryKeychain::clear() {
  const QMutexLocker lock(&m_mutex);
  m_secrets.clear();
}
