#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <chrono>

// Measures when a window's frames have reached the display server. On X11 every painted frame is followed by
// a round trip, so its pixels are there; offscreen a frame counts when it is painted. Main thread only.
class FrameWatch final : public QObject {
  Q_OBJECT

 public:
  using Clock = std::chrono::steady_clock;

  FrameWatch();
  ~FrameWatch() override;

  // Runs the event loop until a frame with that widget, or a widget in it, has arrived, at most five seconds,
  // and returns the time. A null widget means any.
  Clock::time_point waitForFrameOf(const QWidget* widget);

  // Runs the event loop until no frame has arrived for that long. Returns the time of the last frame, or of
  // the call when there was none.
  Clock::time_point waitForQuiet(std::chrono::milliseconds quiet);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  bool runOnce(std::chrono::milliseconds longest);

  QPointer<const QWidget> m_target;
  bool m_wasPainted = false;
};
