#include "host/KZUtility/KZKeyChainHandle.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QMutex>
#include <QMutexLocker>
#include <QThread>

#include "host/KZUtility/KZKeychainQueue.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZUtility.h"
#include "host/KZUtility/SecretServiceKeychain.h"

namespace {

using Item = KZKeychainBackend::Item;
using Answer = KZKeychainBackend::Answer;
using Status = KZKeychainBackend::Status;
using Hindrance = KZKeyChainHandle::Hindrance;

const QString kService = QStringLiteral("Brenn Mivra Meetings");
// User name and password are one item, so that a name is never stored with another one's password.
const Item kOnpremiseItem{kService, QStringLiteral("OutlookAccount(Onpremise)")};
const Item kOnlineItem{kService, QStringLiteral("OutlookAccount(Online)")};
const QString kUsername = QStringLiteral("username");
const QString kPassword = QStringLiteral("password");

Hindrance hindranceOf(Status status) {
  switch (status) {
    case Status::Done:
    case Status::NotFound:
      return Hindrance::None;
    case Status::Locked:
      return Hindrance::Locked;
    case Status::NoKeyring:
      return Hindrance::NoKeyring;
    case Status::Silent:
      return Hindrance::Silent;
  }
  return Hindrance::None;
}

const char* hindranceName(Hindrance hindrance) {
  static constexpr const char* names[] = {"there", "locked", "missing", "silent"};
  return names[static_cast<int>(hindrance)];
}

}  // namespace

struct KZKeyChainHandle::Private {
  explicit Private(KZKeyChainHandle* owner) : handle(owner), queue(newQueue(nullptr, Unlocking::Never)) {}

  KZKeyChainHandle* const handle;
  mutable QMutex mutex;
  std::shared_ptr<KZKeychainQueue> queue;
  Hindrance told = Hindrance::None;  // main thread

  // Signals come from the event loop, so that a host's slot runs under no lock of a caller.
  std::shared_ptr<KZKeychainQueue> newQueue(std::shared_ptr<KZKeychainBackend> backend, Unlocking unlocking) {
    const auto later = [this](auto signal) {
      return [this, signal](const auto&... account) {
        QMetaObject::invokeMethod(
            handle, [this, signal, account...] { (handle->*signal)(account...); }, Qt::QueuedConnection);
      };
    };
    return std::make_shared<KZKeychainQueue>(
        std::move(backend), unlocking,
        KZKeychainQueue::Listener{.written = later(&KZKeyChainHandle::itemWritten),
                                  .removed = later(&KZKeyChainHandle::itemRemoved),
                                  .hindranceChanged = later(&KZKeyChainHandle::tellHindrance)},
        KZKeychainQueue::Pace{});
  }

  std::shared_ptr<KZKeychainQueue> current() const {
    const QMutexLocker lock(&mutex);
    return queue;
  }

  void deliver() {
    if (QThread::currentThread() == handle->thread())
      QCoreApplication::sendPostedEvents(handle, QEvent::MetaCall);
  }
};

KZKeyChainHandle& KZKeyChainHandle::sharedInstance() {
  // Never destroyed: a keyring may answer after the application object is destroyed.
  static KZKeyChainHandle* const handle = new KZKeyChainHandle;
  return *handle;
}

KZKeyChainHandle::KZKeyChainHandle() : d(std::make_unique<Private>(this)) {
  if (qApp) moveToThread(qApp->thread());
}

KZKeyChainHandle::~KZKeyChainHandle() = default;

void KZKeyChainHandle::useStorage(Storage storage, Unlocking unlocking) {
  useBackend(storage == Storage::System ? std::make_shared<SecretServiceKeychain>() : nullptr, unlocking);
}

void KZKeyChainHandle::useBackend(std::shared_ptr<KZKeychainBackend> backend, Unlocking unlocking) {
  if (qApp)
    connect(qApp, &QCoreApplication::aboutToQuit, this, &KZKeyChainHandle::finish, Qt::UniqueConnection);
  finish();
  auto queue = d->newQueue(std::move(backend), unlocking);
  // Both at once, and before they are needed: a slow keyring then delays the start once.
  queue->prefetch({kOnlineItem, kOnpremiseItem});
  {
    const QMutexLocker lock(&d->mutex);
    d->queue.swap(queue);
  }
  tellHindrance();
}

KZKeyChainHandle::Hindrance KZKeyChainHandle::hindrance() const {
  return hindranceOf(d->current()->hindrance());
}

void KZKeyChainHandle::tellHindrance() {
  const Hindrance present = hindrance();
  if (std::exchange(d->told, present) == present) return;
  if (present == Hindrance::None) {
    MVRNSInfoFuncTraceIMPL("KZUtility", Q_FUNC_INFO, "the keyring works again");
  } else {
    MVRNSWarningFuncTraceIMPL("KZUtility", Q_FUNC_INFO, "the keyring is %s: secrets stay in memory",
                              hindranceName(present));
  }
  Q_EMIT hindranceChanged();
}

void KZKeyChainHandle::settle() {
  d->current()->settle();
  d->deliver();
}

void KZKeyChainHandle::finish() {
  const QStringList lost = d->current()->finish();
  d->deliver();
  for (const QString& account : lost) {
    MVRNSErrorFuncTraceIMPL("KZUtility", Q_FUNC_INFO, "the keyring did not take the last change of %@",
                            account);
  }
}

void KZKeyChainHandle::getOutlookUsername(QString* username, QString* password) {
  const Answer answer = d->current()->read(kOnpremiseItem);
  const Dictionary pair = KZUtility::JSONValueFromString(QString::fromUtf8(answer.secret)).toMap();
  *username = textValue(pair, kUsername);
  *password = textValue(pair, kPassword);
}

void KZKeyChainHandle::commitOutlookUsername(const QString& username, const QString& password) {
  Dictionary pair;
  if (!username.isNull()) pair.insert(kUsername, username);
  if (!password.isNull()) pair.insert(kPassword, password);
  if (pair.isEmpty()) {
    removeOutlookCredential();
    return;
  }
  d->current()->write(kOnpremiseItem, QJsonDocument::fromVariant(pair).toJson(QJsonDocument::Compact));
}

KZKeychainBackend::Status KZKeyChainHandle::removeOutlookCredential() {
  return d->current()->remove(kOnpremiseItem);
}

std::optional<QByteArray> KZKeyChainHandle::getOutlookOnlineData() {
  Answer answer = d->current()->read(kOnlineItem);
  return answer.status == Status::Done ? std::optional(std::move(answer.secret)) : std::nullopt;
}

void KZKeyChainHandle::commitOutlookOnlineData(const QByteArray& data) {
  d->current()->write(kOnlineItem, data);
}

KZKeychainBackend::Answer KZKeyChainHandle::copyGenericPassword(const Item& item) {
  return d->current()->read(item);
}

KZKeychainBackend::Status KZKeyChainHandle::deleteGenericPassword(const Item& item) {
  return d->current()->remove(item);
}
