#include "platform/StaticText.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

StaticText::StaticText(const QString& text, FontRole role, double size, Qt::Alignment alignment) {
  setTextFormat(Qt::PlainText);
  setMargin(0);
  setIndent(0);
  setFont(fontFor(role, size));
  setAlignment(alignment | Qt::AlignVCenter);
  setText(text);
}

void StaticText::setSystemColor(SystemColor color) {
  m_color = color;
  update();
}

void StaticText::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(m_color == SystemColor::Text ? palette().color(QPalette::WindowText)
                                              : lookColor(m_color, lookSchemeFor(palette())));
  const QRect visible = visiblePart();
  const QString shown =
      fontMetrics().elidedText(text().left(mostDrawnCharacters), Qt::ElideRight, visible.width());
  drawTextLine(&painter, visible, alignment(), shown);
}

// The parent cuts its children off at its right edge, so the text is elided before that.
QRect StaticText::visiblePart() const {
  const int room = parentWidget() && !isWindow() ? parentWidget()->width() - x() : width();
  QRect visible = contentsRect();
  visible.setRight(qMin(visible.right(), room - 1));
  return visible;
}

bool StaticText::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    const QString whole = text().left(mostDrawnCharacters);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (fontMetrics().horizontalAdvance(whole) > visiblePart().width()) {
      QToolTip::showText(help->globalPos(), whole.toHtmlEscaped(), this);
    }
    return true;
  }
  return QLabel::event(event);
}
