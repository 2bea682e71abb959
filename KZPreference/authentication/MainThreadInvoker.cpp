#include "KZPreference/authentication/MainThreadInvoker.h"

#include <QMutexLocker>
#include <QSemaphore>
#include <QThread>

MainThreadInvoker::MainThreadInvoker() : m_receiver(std::make_unique<QObject>()) {}
MainThreadInvoker::~MainThreadInvoker() = default;

void MainThreadInvoker::post(const Work& work) {
  const QMutexLocker lock(&m_mutex);
  if (!m_receiver) return;
  ++m_postedCount;
  QMetaObject::invokeMethod(
      m_receiver.get(),
      [this, work] {
        --m_postedCount;
        work();
      },
      Qt::QueuedConnection);
}

void MainThreadInvoker::invoke(const Work& work) {
  {
    QMutexLocker lock(&m_mutex);
    if (!m_receiver) return;
    if (m_receiver->thread() == QThread::currentThread()) {
      lock.unlock();
      return work();
    }
  }
  const auto done = std::make_shared<QSemaphore>();
  {
    // Released when the work is done, or when it is dropped.
    const std::shared_ptr<void> release(nullptr, [done](void*) { done->release(); });
    post([work, release] { work(); });
  }
  done->acquire();
}

void MainThreadInvoker::close() {
  std::unique_ptr<QObject> receiver;
  const QMutexLocker lock(&m_mutex);
  receiver.swap(m_receiver);
}
