#include "host/KZUIExtension/BRNHyperlinkTextField.h"

#include <QFontMetricsF>
#include <QKeyEvent>
#include <QPainter>
#include <cmath>

namespace {

constexpr qreal kFocusRadius = 3;

bool isClickKey(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

QColor mixedLinkColors(const QColor& from, const QColor& to, float share) {
  return QColor::fromRgbF(from.redF() + (to.redF() - from.redF()) * share,
                          from.greenF() + (to.greenF() - from.greenF()) * share,
                          from.blueF() + (to.blueF() - from.blueF()) * share);
}

}  // namespace

BRNHyperlinkTextField::BRNHyperlinkTextField() {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
}

void BRNHyperlinkTextField::setUnderlineStyle(int style) {
  m_underlineStyle = style;
  update();
}

void BRNHyperlinkTextField::setNoClickColor(NoClickColor color) {
  m_color = color;
  update();
}

QSize BRNHyperlinkTextField::sizeHint() const {
  return {fontMetrics().horizontalAdvance(text()), fontMetrics().height()};
}

void BRNHyperlinkTextField::keyPressEvent(QKeyEvent* event) {
  if (isClickKey(*event) && !event->isAutoRepeat()) return click();
  QAbstractButton::keyPressEvent(event);
}

QColor BRNHyperlinkTextField::currentColor() const {
  const QColor text = palette().color(QPalette::WindowText);
  if (!isEnabled()) return text;
  const QColor plain = m_color == NoClickColor::Blue ? palette().color(QPalette::Link) : text;
  if (isDown()) return mixedLinkColors(plain, text, 0.7F);
  return underMouse() ? mixedLinkColors(plain, text, 0.35F) : plain;
}

void BRNHyperlinkTextField::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool isFocused = hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange);
  if (isFocused) {
    QColor tint = palette().color(QPalette::Highlight);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(tint, 1.5));
    tint.setAlphaF(0.08F);
    painter.setBrush(tint);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75), kFocusRadius, kFocusRadius);
    painter.setRenderHint(QPainter::Antialiasing, false);
  }

  const QColor color = currentColor();
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
  // On one line with labels of the same height: a fallback font does not move the line.
  const QFontMetricsF metrics(font());
  const double baseline = std::round((height() - metrics.height()) / 2 + metrics.ascent());
  const double length = metrics.horizontalAdvance(shown);
  const double left = isRightToLeft() ? width() - length : 0;
  painter.setPen(color);
  painter.drawText(QPointF(left, baseline), shown);
  if (m_underlineStyle == 0 || isFocused) return;
  // Below the descenders, so that the line never strikes through them.
  const int thickness = isDown() || underMouse() ? 2 : 1;
  const double top = qMin(baseline + 2, double(height() - thickness));
  painter.fillRect(QRectF(left, top, length, thickness), color);
}
