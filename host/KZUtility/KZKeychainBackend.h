#pragma once

#include <QByteArray>
#include <QString>

#include "host/KZFoundation/KZHostExport.h"

// Where secrets are kept. Calls are synchronous and bounded in time; any thread.
class KZ_HOST_EXPORT KZKeychainBackend {
 public:
  enum class Status { Done, NotFound, Unavailable };
  struct Item {
    QString service;
    QString account;
  };
  struct Answer {
    Status status = Status::NotFound;
    QByteArray secret;
  };

  KZKeychainBackend() = default;
  virtual ~KZKeychainBackend() = default;
  Q_DISABLE_COPY_MOVE(KZKeychainBackend)

  [[nodiscard]] virtual Answer read(const Item& item) = 0;
  [[nodiscard]] virtual Status write(const Item& item, const QByteArray& secret) = 0;
  [[nodiscard]] virtual Status remove(const Item& item) = 0;
};
