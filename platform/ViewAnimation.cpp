#include "platform/ViewAnimation.h"

#include <QEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>

#include "platform/FrameLayout.h"

namespace {

// Covers the container with a blend of two pictures that share an upper corner; the live view is
// underneath.
class FadeOverlay final : public QWidget {
 public:
  FadeOverlay(QWidget* container, const QPixmap& oldPicture, const QPixmap& newPicture)
      : QWidget(container), m_old(oldPicture), m_new(newPicture) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

  void setProgress(double progress) {
    m_progress = progress;
    resize(parentWidget()->size());
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const QColor background = palette().color(QPalette::Window);
    QPainter painter(this);
    painter.fillRect(rect(), background);
    painter.drawPixmap(leftOf(m_old), 0, m_old);
    painter.setOpacity(m_progress);
    painter.fillRect(rect(), background);
    painter.drawPixmap(leftOf(m_new), 0, m_new);
  }

  // The pictures show the colours of before.
  void changeEvent(QEvent* event) override {
    if (event->type() == QEvent::PaletteChange) hide();
    QWidget::changeEvent(event);
  }

 private:
  int leftOf(const QPixmap& picture) const {
    return isRightToLeft() ? width() - qRound(picture.deviceIndependentSize().width()) : 0;
  }

  QPixmap m_old;
  QPixmap m_new;
  double m_progress = 0;
};

}  // namespace

ViewAnimation::ViewAnimation(QObject* parent) : QObject(parent), m_progress(this) {
  m_progress.setStartValue(0.0);
  m_progress.setEndValue(1.0);
  m_progress.setEasingCurve(QEasingCurve::InOutQuad);
  connect(&m_progress, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& value) { advance(value.toDouble()); });
  connect(&m_progress, &QVariantAnimation::finished, this, &ViewAnimation::finish);
}

ViewAnimation::~ViewAnimation() = default;

bool ViewAnimation::animates(const Window& window) {
  return window.isOnScreen() && window.style()->styleHint(QStyle::SH_Widget_Animate, nullptr, &window);
}

QPixmap ViewAnimation::pictureOf(QWidget* view) {
  return view->grab(QRect(QPoint(), view->size().boundedTo(view->screen()->size())));
}

bool ViewAnimation::isRunning() const {
  return m_progress.state() != QAbstractAnimation::Stopped;
}

void ViewAnimation::start(const CrossFade& fade, const QPixmap& oldPicture) {
  stop();
  m_window = fade.window;
  m_startSize = frameOf(fade.window).size();
  m_endSize = fade.endSize;
  if (!animates(*fade.window)) return finish();

  if (!oldPicture.isNull()) {
    auto* overlay = new FadeOverlay(fade.newView->parentWidget(), oldPicture, pictureOf(fade.newView));
    m_overlay = overlay;
    overlay->setProgress(0);
    overlay->show();
  }
  m_progress.setDuration(qRound(m_duration * 1000));
  m_progress.start();
}

void ViewAnimation::stop() {
  m_progress.stop();
  delete m_overlay;
}

void ViewAnimation::advance(double progress) {
  if (!m_window) return;
  const auto between = [progress](double from, double to) { return from + (to - from) * progress; };
  setWindowSize(m_window, {.width = between(m_startSize.width, m_endSize.width),
                           .height = between(m_startSize.height, m_endSize.height)});
  if (m_overlay) static_cast<FadeOverlay*>(m_overlay.data())->setProgress(progress);
}

void ViewAnimation::finish() {
  delete m_overlay;
  if (m_window) setWindowSize(m_window, m_endSize);
  Q_EMIT didEnd();
}
