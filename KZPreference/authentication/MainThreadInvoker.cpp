#include "KZPreference/authentication/MainThreadInvoker.h"

#include <QMutexLocker>
#include <QSemaphore>
#include <QThread>

void MainThreadInvoker::invoke(const std::function<void()>& work) {
  auto done = std::make_shared<QSemaphore>();
  {
    QMutexLocker lock(&m_mutex);
    if (!m_receiver) return;
    if (m_receiver->thread() == QThread::currentThread()) {
      lock.unlock();
      return work();
    }
    // Released when the work is done, or when it is dropped with its receiver.
    const std::shared_ptr<void> release(nullptr, [done](void*) { done->release(); });
    QMetaObject::invokeMethod(
        m_receiver.get(), [work, release] { work(); }, Qt::QueuedConnection);
  }
  done->acquire();
}

void MainThreadInvoker::close() {
  std::unique_ptr<QObject> receiver;
  const QMutexLocker lock(&m_mutex);
  receiver.swap(m_receiver);
}
