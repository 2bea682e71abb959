#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include "platform/Frame.h"
#include "platform/PlatformExport.h"

// Fades one view into another while their window changes its frame. Does not block; ease in and out. With the style
// hint SH_Widget_Animate off it ends at once. Main thread only.
class PLATFORM_EXPORT ViewAnimation : public QObject {
  Q_OBJECT

 public:
  struct CrossFade {
    QWidget* oldView = nullptr;  // may be missing
    QWidget* newView = nullptr;
    QWidget* window = nullptr;
    Frame startFrame;  // of the window
    Frame endFrame;
  };

  explicit ViewAnimation(QObject* parent);
  ~ViewAnimation() override;

  void setDuration(double seconds);
  double duration() const;  // seconds
  bool isRunning() const;

  void start(const CrossFade& fade);
  void stop();  // leaves everything as it stands; no didEnd

 Q_SIGNALS:
  void didEnd();

 private:
  void advance(double progress);
  void finish();

  QVariantAnimation m_progress;
  CrossFade m_fade;
  QPointer<QWidget> m_overlay;
};
