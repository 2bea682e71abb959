#include "host/KZUtility/KZKeyChainHandle.h"

#include <QJsonDocument>
#include <QMap>
#include <QMutex>
#include <QMutexLocker>

#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZUtility.h"
#include "host/KZUtility/SecretServiceKeychain.h"

namespace {

using Item = KZKeychainBackend::Item;
using Answer = KZKeychainBackend::Answer;
using Status = KZKeychainBackend::Status;

const QString kService = QStringLiteral("Brenn Mivra Meetings");
// User name and password are one item, so that a name is never stored with another one's password.
const Item kOnpremiseItem{kService, QStringLiteral("OutlookAccount(Onpremise)")};
const Item kOnlineItem{kService, QStringLiteral("OutlookAccount(Online)")};
const QString kUsername = QStringLiteral("username");
const QString kPassword = QStringLiteral("password");

}  // namespace

struct KZKeyChainHandle::Private {
  explicit Private(KZKeyChainHandle* owner) : handle(owner) {}

  KZKeyChainHandle* const handle;
  QMutex mutex;
  std::shared_ptr<KZKeychainBackend> backend;  // null while everything is in memory
  bool hasFailed = false;
  // Without a backend all secrets, otherwise those read from it or written to it.
  QMap<std::pair<QString, QString>, QByteArray> memory;

  std::shared_ptr<KZKeychainBackend> currentBackend() {
    const QMutexLocker lock(&mutex);
    return backend;
  }

  Answer readMemory(const Item& item) {
    const QMutexLocker lock(&mutex);
    const auto found = memory.constFind({item.service, item.account});
    if (found == memory.constEnd()) return {.status = Status::NotFound, .secret = {}};
    return {.status = Status::Done, .secret = *found};
  }

  void writeMemory(const Item& item, const QByteArray& secret) {
    const QMutexLocker lock(&mutex);
    memory.insert({item.service, item.account}, secret);
  }

  Status removeFromMemory(const Item& item) {
    const QMutexLocker lock(&mutex);
    return memory.remove({item.service, item.account}) > 0 ? Status::Done : Status::NotFound;
  }

  void giveUp(const std::shared_ptr<KZKeychainBackend>& keychain) {
    {
      const QMutexLocker lock(&mutex);
      if (backend != keychain) return;
      backend.reset();
      hasFailed = true;
    }
    MVRNSWarningFuncTraceIMPL("KZUtility", Q_FUNC_INFO,
                              "the keychain is not available: secrets stay in memory for this run");
    Q_EMIT handle->failed();
  }

  Answer read(const Item& item) {
    if (const auto keychain = currentBackend()) {
      Answer answer = keychain->read(item);
      if (answer.status == Status::Done) writeMemory(item, answer.secret);
      if (answer.status == Status::NotFound) (void)removeFromMemory(item);
      if (answer.status != Status::Unavailable) return answer;
      giveUp(keychain);
    }
    return readMemory(item);
  }

  void write(const Item& item, const QByteArray& secret) {
    writeMemory(item, secret);
    const auto keychain = currentBackend();
    if (keychain && keychain->write(item, secret) != Status::Done) giveUp(keychain);
    Q_EMIT handle->itemWritten(item.account);
  }

  Status remove(const Item& item) {
    Status status = removeFromMemory(item);
    if (const auto keychain = currentBackend()) {
      const Status answer = keychain->remove(item);
      if (answer == Status::Unavailable) {
        giveUp(keychain);
      } else {
        status = answer;
      }
    }
    if (status == Status::Done) Q_EMIT handle->itemRemoved(item.account);
    return status;
  }
};

KZKeyChainHandle& KZKeyChainHandle::sharedInstance() {
  // Never destroyed: a keychain may respond after the application object is destroyed.
  static KZKeyChainHandle* const handle = new KZKeyChainHandle;
  return *handle;
}

KZKeyChainHandle::KZKeyChainHandle() : d(std::make_unique<Private>(this)) {}
KZKeyChainHandle::~KZKeyChainHandle() = default;

void KZKeyChainHandle::useStorage(Storage storage) {
  useBackend(storage == Storage::System ? std::make_shared<SecretServiceKeychain>() : nullptr);
}

void KZKeyChainHandle::useBackend(std::shared_ptr<KZKeychainBackend> backend) {
  const QMutexLocker lock(&d->mutex);
  d->backend.swap(backend);
  d->hasFailed = false;
  d->memory.clear();
}

bool KZKeyChainHandle::hasFailed() const {
  const QMutexLocker lock(&d->mutex);
  return d->hasFailed;
}

void KZKeyChainHandle::getOutlookUsername(QString* username, QString* password) {
  const Answer answer = d->read(kOnpremiseItem);
  const Dictionary pair = KZUtility::JSONValueFromString(QString::fromUtf8(answer.secret)).toMap();
  *username = textValue(pair, kUsername);
  *password = textValue(pair, kPassword);
}

void KZKeyChainHandle::commitOutlookUsername(const QString& username, const QString& password) {
  Dictionary pair;
  if (!username.isNull()) pair.insert(kUsername, username);
  if (!password.isNull()) pair.insert(kPassword, password);
  if (pair.isEmpty()) return removeOutlookCredential();
  d->write(kOnpremiseItem, QJsonDocument::fromVariant(pair).toJson(QJsonDocument::Compact));
}

void KZKeyChainHandle::removeOutlookCredential() {
  (void)d->remove(kOnpremiseItem);
}

std::optional<QByteArray> KZKeyChainHandle::getOutlookOnlineData() {
  Answer answer = d->read(kOnlineItem);
  return answer.status == Status::Done ? std::optional(std::move(answer.secret)) : std::nullopt;
}

void KZKeyChainHandle::commitOutlookOnlineData(const QByteArray& data) {
  d->write(kOnlineItem, data);
}

KZKeychainBackend::Answer KZKeyChainHandle::copyGenericPassword(const Item& item) {
  return d->read(item);
}

KZKeychainBackend::Status KZKeyChainHandle::deleteGenericPassword(const Item& item) {
  return d->remove(item);
}
