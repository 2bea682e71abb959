#pragma once

#include <QMutex>
#include <QObject>
#include <functional>
#include <memory>

// Runs work on the main thread while the calling thread waits; a call from the main thread runs it at once.
// Created on the main thread; its callers share ownership.
class MainThreadInvoker {
 public:
  // Any thread.
  void invoke(const std::function<void()>& work);

  // Main thread. Waiting callers return; work that has not begun is dropped, and so is all later work.
  void close();

 private:
  QMutex m_mutex;
  std::unique_ptr<QObject> m_receiver = std::make_unique<QObject>();
};
