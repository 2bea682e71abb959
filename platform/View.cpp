#include "platform/View.h"

#include <QAccessible>
#include <QPainter>
#include <QShowEvent>
#include <QStyle>

#include "platform/FrameLayout.h"

View::View(const Frame& frame) {
  setFrame(this, frame);
}

View::~View() = default;

QList<DrawnText> View::drawnTexts() const {
  return {};
}

QRectF View::boxOf(const DrawnText& drawn) const {
  const Frame& frame = drawn.frame;
  const double left = isRightToLeft() ? width() - frame.maxX() : frame.x;
  return {left, frameOf(this).height - frame.maxY(), frame.width, frame.height};
}

void View::viewDidUnhide() {}

void View::drawnTextsChanged() {
  update();
  if (!QAccessible::isActive()) return;
  const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(this);
  for (int i = 0; i < spoken->childCount(); ++i) {
    QAccessibleInterface* child = spoken->child(i);
    if (child->object()) continue;
    QAccessibleEvent changed(child, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
  }
}

void View::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  const QList<DrawnText> texts = drawnTexts();
  if (texts.isEmpty()) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  for (const DrawnText& drawn : texts) {
    painter.setFont(fontFor(drawn.role, drawn.size));
    drawTextLine(&painter, boxOf(drawn), QStyle::visualAlignment(layoutDirection(), drawn.alignment),
                 drawn.text.left(mostDrawnCharacters));
  }
}

void View::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  // A minimised window, which was never hidden, gets a spontaneous event when it is restored.
  if (!event->spontaneous()) viewDidUnhide();
}
