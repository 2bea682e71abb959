#include "platform/Spinner.h"

#include <QPainter>
#include <QTimerEvent>

namespace {

constexpr int kSpokes = 12;
constexpr int kStepMilliseconds = 83;  // one turn a second
constexpr int kSpinnerSide = 16;
constexpr qreal kFaintest = 0.15;

}  // namespace

Spinner::Spinner() {
  setFocusPolicy(Qt::NoFocus);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Spinner::startAnimation() {
  if (m_isAnimating) return;
  m_isAnimating = true;
  updateTimer();
  update();
}

void Spinner::stopAnimation() {
  if (!m_isAnimating) return;
  m_isAnimating = false;
  updateTimer();
  update();
}

QSize Spinner::sizeHint() const {
  return {kSpinnerSide, kSpinnerSide};
}

void Spinner::paintEvent(QPaintEvent*) {
  if (!m_isAnimating) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(QRectF(rect()).center());
  const qreal radius = qMin(width(), height()) / 2.0;
  QColor color = palette().color(QPalette::WindowText);
  for (int spoke = 0; spoke < kSpokes; ++spoke) {
    const int age = (m_step - spoke + kSpokes) % kSpokes;
    color.setAlphaF(float(kFaintest + (1 - kFaintest) * (kSpokes - 1 - age) / (kSpokes - 1)));
    painter.setPen(QPen(color, radius / 5.5, Qt::SolidLine, Qt::RoundCap));
    painter.save();
    painter.rotate(360.0 / kSpokes * spoke);
    painter.drawLine(QPointF(0, -radius * 0.52), QPointF(0, -radius * 0.86));
    painter.restore();
  }
}

void Spinner::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  updateTimer();
}

void Spinner::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  updateTimer();
}

void Spinner::timerEvent(QTimerEvent* event) {
  if (event->timerId() != m_timer.timerId()) return QWidget::timerEvent(event);
  m_step = (m_step + 1) % kSpokes;
  update();
}

void Spinner::updateTimer() {
  if (!m_isAnimating || !isVisible()) return m_timer.stop();
  if (!m_timer.isActive()) m_timer.start(kStepMilliseconds, this);
}
