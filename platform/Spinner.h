#pragma once

#include <QBasicTimer>
#include <QWidget>

#include "platform/PlatformExport.h"

// A small busy indicator, 16 by 16 points. It turns only while it is animated and visible.
class PLATFORM_EXPORT Spinner : public QWidget {
  Q_OBJECT

 public:
  Spinner();

  void startAnimation();
  void stopAnimation();
  bool isAnimating() const { return m_isAnimating; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

 private:
  void updateTimer();

  QBasicTimer m_timer;
  bool m_isAnimating = false;
  int m_step = 0;
};
