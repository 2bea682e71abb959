#include "companion/session/EventPump.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

namespace eventpump {
namespace {

// Two objects that post to each other for ever must not stop a script.
constexpr qint64 kLongestSettlingMs = 2000;

}  // namespace

void settle() {
  QElapsedTimer time;
  time.start();
  QAbstractEventDispatcher* dispatcher = QCoreApplication::eventDispatcher();
  bool isBusy = true;
  while (isBusy && time.elapsed() < kLongestSettlingMs) {
    qGuiApp->sync();
    isBusy = dispatcher->processEvents(QEventLoop::AllEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void run(std::chrono::milliseconds time) {
  QEventLoop loop;
  QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
  loop.exec();
  settle();
}

}  // namespace eventpump
