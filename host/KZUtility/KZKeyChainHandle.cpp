#include "host/KZUtility/KZKeyChainHandle.h"

#include <QJsonDocument>
#include <QMutexLocker>

#include "host/KZUtility/BoundedJson.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/MemoryKeychain.h"
#include "host/KZUtility/SecretServiceKeychain.h"

namespace {

using Item = KZKeychainBackend::Item;
using Answer = KZKeychainBackend::Answer;
using Status = KZKeychainBackend::Status;

const QString& keychainService() {
  static const QString service = QStringLiteral("Brenn Mivra Meetings");
  return service;
}

// One item for the pair, so that a name never meets another one's password.
Item onpremiseItem() {
  return {keychainService(), QStringLiteral("OutlookAccount(Onpremise)")};
}
Item onlineItem() {
  return {keychainService(), QStringLiteral("OutlookAccount(Online)")};
}

const QString& usernameKey() {
  static const QString key = QStringLiteral("username");
  return key;
}

const QString& passwordKey() {
  static const QString key = QStringLiteral("password");
  return key;
}

}  // namespace

struct KZKeyChainHandle::Private {
  explicit Private(KZKeyChainHandle* owner) : handle(owner) {}

  KZKeyChainHandle* const handle;
  QMutex mutex;
  std::shared_ptr<KZKeychainBackend> backend;  // null while everything is in memory
  bool isLost = false;
  MemoryKeychain memory;  // besides, what is known of the backend's items

  std::shared_ptr<KZKeychainBackend> currentBackend() {
    const QMutexLocker lock(&mutex);
    return backend;
  }

  void giveUp(const std::shared_ptr<KZKeychainBackend>& lost) {
    {
      const QMutexLocker lock(&mutex);
      if (backend != lost) return;
      backend.reset();
      isLost = true;
    }
    MVRNSWarningFuncTraceIMPL("KZUtility", Q_FUNC_INFO,
                              "the keychain is not available: secrets stay in memory for this run");
    Q_EMIT handle->lost();
  }

  Answer read(const Item& item) {
    if (const auto keychain = currentBackend()) {
      Answer answer = keychain->read(item);
      if (answer.status == Status::Done) (void)memory.write(item, answer.secret);
      if (answer.status == Status::NotFound) (void)memory.remove(item);
      if (answer.status != Status::Unavailable) return answer;
      giveUp(keychain);
    }
    return memory.read(item);
  }

  void write(const Item& item, const QByteArray& secret) {
    (void)memory.write(item, secret);
    const auto keychain = currentBackend();
    if (keychain && keychain->write(item, secret) != Status::Done) giveUp(keychain);
    Q_EMIT handle->itemWritten(item.account);
  }

  Status remove(const Item& item) {
    const Status status = removeFromAll(item);
    if (status == Status::Done) Q_EMIT handle->itemRemoved(item.account);
    return status;
  }

  Status removeFromAll(const Item& item) {
    const Status inMemory = memory.remove(item);
    const auto keychain = currentBackend();
    if (!keychain) return inMemory;
    const Status status = keychain->remove(item);
    if (status != Status::Unavailable) return status;
    giveUp(keychain);
    return inMemory;
  }
};

KZKeyChainHandle& KZKeyChainHandle::sharedInstance() {
  // Never destroyed: a keychain that answers late must find what it answers to.
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
  d->isLost = false;
  d->memory.clear();
}

bool KZKeyChainHandle::isLost() const {
  const QMutexLocker lock(&d->mutex);
  return d->isLost;
}

void KZKeyChainHandle::getOutlookUsername(QString* username, QString* password) {
  const Answer answer = d->read(onpremiseItem());
  const QVariant pair = answer.status == Status::Done
                            ? boundedJsonValue(QString::fromUtf8(answer.secret)).value_or(QVariant())
                            : QVariant();
  *username = textValue(pair.toMap(), usernameKey());
  *password = textValue(pair.toMap(), passwordKey());
}

void KZKeyChainHandle::commitOutlookUsername(const QString& username, const QString& password) {
  QVariantMap pair;
  if (!username.isNull()) pair.insert(usernameKey(), username);
  if (!password.isNull()) pair.insert(passwordKey(), password);
  if (pair.isEmpty()) return removeOutlookCredential();
  d->write(onpremiseItem(), QJsonDocument::fromVariant(pair).toJson(QJsonDocument::Compact));
}

void KZKeyChainHandle::removeOutlookCredential() {
  (void)d->remove(onpremiseItem());
}

std::optional<QByteArray> KZKeyChainHandle::getOutlookOnlineData() {
  Answer answer = d->read(onlineItem());
  return answer.status == Status::Done ? std::optional(std::move(answer.secret)) : std::nullopt;
}

void KZKeyChainHandle::commitOutlookOnlineData(const QByteArray& data) {
  d->write(onlineItem(), data);
}

KZKeychainBackend::Answer KZKeyChainHandle::copyGenericPassword(const Item& item) {
  return d->read(item);
}

KZKeychainBackend::Status KZKeyChainHandle::deleteGenericPassword(const Item& item) {
  return d->remove(item);
}
