#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "host/KZFoundation/KZHostExport.h"

// A keyring, where secrets are kept from run to run. Calls are synchronous and bounded in time. They come
// from one worker thread, one after another; only `unlock` has a thread of its own.
class KZ_HOST_EXPORT KZKeychainBackend {
 public:
  // What the keyring said.
  enum class Status {
    Done,
    NotFound,
    Locked,     // the item, or the whole keyring
    NoKeyring,  // there is none, or it refuses
    Silent,     // it did not answer in time; it may still carry the call out
  };
  // Whether the user may be asked to unlock what is locked, once in a run. Only where somebody can answer.
  enum class Unlocking { Never, AskOnce };
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
  // Asks the user to unlock the items, which were said to be locked. Returns when the user has answered.
  virtual void unlock(const QList<Item>& /*items*/) {}
};
