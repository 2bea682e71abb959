#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <chrono>

// Tells when a window's frames have reached the display server. On X11 every painted frame is followed by a
// round trip, so its pixels are there; offscreen a frame counts when it is painted. Main thread only.
class FrameWatch final : public QObject {
  Q_OBJECT

 public:
  using Clock = std::chrono::steady_clock;

  FrameWatch();
  ~FrameWatch() override;

  // When the next frame in which that widget, or anything in it, is painted has arrived; runs the event loop
  // until then. A null widget: any. After five seconds without one, nothing more is waited for.
  Clock::time_point waitForFrameOf(const QWidget* widget);

  // When the last frame before that much quiet arrived; the start of the wait when none came.
  Clock::time_point waitForQuiet(std::chrono::milliseconds quiet);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool runOnce(std::chrono::milliseconds longest);

  QPointer<const QWidget> m_target;
  bool m_wasPainted = false;
};
