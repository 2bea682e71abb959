#include "platform/View.h"

#include <QPainter>
#include <QShowEvent>
#include <QStringList>

#include "platform/FrameLayout.h"

View::View(const Frame& frame) {
  setFrame(this, frame);
}

View::~View() = default;

QList<DrawnText> View::drawnTexts() const {
  return {};
}

void View::viewDidUnhide() {}

void View::drawnTextsChanged() {
  QStringList lines;
  for (const DrawnText& drawn : drawnTexts()) lines.append(drawn.text);
  setAccessibleName(lines.join(QStringLiteral("\n")));
  update();
}

void View::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  const QList<DrawnText> texts = drawnTexts();
  if (texts.isEmpty()) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  const double height = frameOf(this).height;
  for (const DrawnText& drawn : texts) {
    painter.setFont(fontFor(drawn.role, drawn.size));
    const QRectF box(drawn.frame.x, height - drawn.frame.maxY(), drawn.frame.width, drawn.frame.height);
    drawTextLine(&painter, box, drawn.alignment, drawn.text.left(mostDrawnCharacters));
  }
}

void View::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  // A minimised window, which was never hidden, gets a spontaneous event when it is restored.
  if (!event->spontaneous()) viewDidUnhide();
}
