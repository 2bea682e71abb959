#pragma once

#include <QMutex>
#include <QObject>
#include <atomic>
#include <functional>
#include <memory>

// Runs work on the main thread. Created on the main thread; its callers share ownership.
class MainThreadInvoker {
 public:
  using Work = std::function<void()>;

  MainThreadInvoker();
  ~MainThreadInvoker();

  // Any thread. Runs the work later, from the event loop, in the order of the calls.
  void post(const Work& work);

  // Any thread, which waits until the work is done. On the main thread the work runs at once.
  void invoke(const Work& work);

  // Main thread: whether posted work has not begun.
  bool hasPosted() const { return m_postedCount > 0; }

  // Main thread. Waiting callers return; work that has not begun is dropped, and so is all later work.
  void close();

 private:
  QMutex m_mutex;
  std::unique_ptr<QObject> m_receiver;
  std::atomic_int m_postedCount = 0;
};
