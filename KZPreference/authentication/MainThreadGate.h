#pragma once

#include <QMutex>
#include <QObject>
#include <functional>
#include <memory>

// Runs work on the main thread while the caller waits; on the main thread itself it simply runs it. Any
// thread may pass. When the gate goes (on the main thread), who waits is let go and what was not begun is
// dropped.
class MainThreadGate {
 public:
  MainThreadGate();
  ~MainThreadGate();
  Q_DISABLE_COPY_MOVE(MainThreadGate)

  // Shared with callers on other threads, who may come when the gate has gone.
  class Entrance {
   public:
    void pass(const std::function<void()>& work);

   private:
    friend class MainThreadGate;

    QMutex m_mutex;
    std::unique_ptr<QObject> m_receiver;
  };

  std::shared_ptr<Entrance> entrance() const { return m_entrance; }

 private:
  std::shared_ptr<Entrance> m_entrance;
};
