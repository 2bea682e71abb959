#pragma once

#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include "platform/Frame.h"
#include "platform/PlatformExport.h"

// Fades one view into another while their window changes its frame. Does not block; ease in and out. With the
// style hint SH_Widget_Animate off it ends at once. Main thread only.
class PLATFORM_EXPORT ViewAnimation : public QObject {
  Q_OBJECT

 public:
  struct CrossFade {
    QWidget* newView = nullptr;  // laid out, in its container
    QWidget* window = nullptr;
    Frame endFrame;  // of the window
  };

  explicit ViewAnimation(QObject* parent);
  ~ViewAnimation() override;

  // As much of the view as a screen can show, from its upper left corner.
  static QPixmap pictureOf(QWidget* view);

  void setDuration(double seconds) { m_duration = seconds; }
  double duration() const { return m_duration; }
  bool isRunning() const;

  // `oldPicture` is what the new view's container showed last; while a fade runs, its present state.
  void start(const CrossFade& fade, const QPixmap& oldPicture);
  // Leaves the window at its present size and shows the live views; emits no didEnd.
  void stop();

 Q_SIGNALS:
  void didEnd();

 private:
  void advance(double progress);
  void finish();

  QVariantAnimation m_progress;
  double m_duration = 0;
  QPointer<QWidget> m_window;
  Size m_startSize;
  Frame m_endFrame;
  QPointer<QWidget> m_overlay;
};
