#include "bench/FrameWatch.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>

using namespace std::chrono_literals;

FrameWatch::FrameWatch() {
  qApp->installEventFilter(this);
}

FrameWatch::~FrameWatch() {
  qApp->removeEventFilter(this);
}

FrameWatch::Clock::time_point FrameWatch::waitForFrameOf(const QWidget* widget) {
  m_target = widget;
  const auto deadline = Clock::now() + 5s;
  while (!runOnce(20ms) && Clock::now() < deadline) {
  }
  m_target = nullptr;
  return Clock::now();
}

FrameWatch::Clock::time_point FrameWatch::waitForQuiet(std::chrono::milliseconds quiet) {
  auto last = Clock::now();
  auto end = last + quiet;
  while (Clock::now() < end) {
    if (!runOnce(5ms)) continue;
    last = Clock::now();
    end = last + quiet;
  }
  return last;
}

bool FrameWatch::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::Paint) return false;
  const auto* widget = qobject_cast<const QWidget*>(object);
  if (widget && (!m_target || m_target == widget || m_target->isAncestorOf(widget))) m_wasPainted = true;
  return false;
}

bool FrameWatch::runOnce(std::chrono::milliseconds longest) {
  m_wasPainted = false;
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  if (!m_wasPainted) {
    // Sleeps until the next event, at most that long.
    QTimer::singleShot(longest, Qt::PreciseTimer, this, [] {});
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }
  if (m_wasPainted) qGuiApp->sync();
  return m_wasPainted;
}
