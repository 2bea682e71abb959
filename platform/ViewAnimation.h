#pragma once

#include <QObject>
#include <QPixmap>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include "platform/Frame.h"
#include "platform/PlatformExport.h"
#include "platform/WindowController.h"

// Fades one view into another while their window changes its size; its upper edge stays where it is. Does not
// block; ease in and out. It ends at once in a window that is not on the screen yet, and with the style hint
// SH_Widget_Animate off. Main thread only.
class PLATFORM_EXPORT ViewAnimation : public QObject {
  Q_OBJECT

 public:
  struct CrossFade {
    QWidget* newView = nullptr;  // laid out, in its container
    Window* window = nullptr;
    Size endSize;  // of the window
  };

  explicit ViewAnimation(QObject* parent);
  ~ViewAnimation() override;

  // False where a switch is immediate.
  static bool animates(const Window& window);

  // As much of the view as a screen can show, from its upper left corner.
  static QPixmap pictureOf(QWidget* view);

  void setDuration(double seconds) { m_duration = seconds; }
  double duration() const { return m_duration; }
  bool isRunning() const;

  // `oldPicture` is what the new view's container showed last; while a fade runs, its present state. Without
  // one, only the size is animated.
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
  QPointer<Window> m_window;
  Size m_startSize;
  Size m_endSize;
  QPointer<QWidget> m_overlay;
};
