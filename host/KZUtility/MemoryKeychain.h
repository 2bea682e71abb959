#pragma once

#include <QMap>
#include <QMutex>

#include "host/KZUtility/KZKeychainBackend.h"

// Secrets that are gone with the process.
class MemoryKeychain final : public KZKeychainBackend {
 public:
  [[nodiscard]] Answer read(const Item& item) override;
  [[nodiscard]] Status write(const Item& item, const QByteArray& secret) override;
  [[nodiscard]] Status remove(const Item& item) override;
  void clear();

 private:
  using Name = std::pair<QString, QString>;

  QMutex m_mutex;
  QMap<Name, QByteArray> m_secrets;
};
