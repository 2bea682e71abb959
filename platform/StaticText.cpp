#include "platform/StaticText.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "platform/FrameLayout.h"

namespace {

// Above and below the lines of a wrapped text together.
constexpr int kLinesPadding = 4;

}  // namespace

StaticText::StaticText(const QString& text, FontRole role, double size, Qt::Alignment alignment)
    : m_drawnAlignment(alignment) {
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

void StaticText::setDrawnAlignment(Qt::Alignment alignment) {
  m_drawnAlignment = alignment;
  update();
}

// A text that is wider than its frame is elided, so only the height counts.
QSize StaticText::minimumSizeHint() const {
  return {0, fontMetrics().height()};
}

int StaticText::heightForWidth(int width) const {
  if (!wordWrap()) return -1;
  const QMargins margins = contentsMargins();
  const qsizetype lines = linesFor(width - margins.left() - margins.right()).size();
  return int(lines) * fontMetrics().lineSpacing() + kLinesPadding;
}

QStringList StaticText::linesFor(double width) const {
  const QString whole = text().left(mostDrawnCharacters);
  QTextLayout layout(whole, font());
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    lines.append(whole.mid(line.textStart(), line.textLength()).trimmed());
  }
  layout.endLayout();
  return lines;
}

StaticText::Shown StaticText::shown() const {
  const QString whole = text().left(mostDrawnCharacters);
  const QFontMetricsF metrics(font());
  const double width = visiblePart().width();
  // Widths are rounded to pixels, so a text that exactly fills its frame would be elided.
  const auto fits = [&](const QString& line) {
    return metrics.horizontalAdvance(line) <= std::max(width, frameOf(this).width);
  };
  if (!wordWrap()) {
    if (width == contentsRect().width() && fits(whole)) return {.lines = {whole}};
    const QString line = metrics.elidedText(whole, Qt::ElideRight, width);
    return {.lines = {line}, .isWhole = line == whole};
  }
  QStringList lines = linesFor(width);
  const int most = std::max(1, (height() - kLinesPadding) / fontMetrics().lineSpacing());
  if (lines.size() <= most) return {.lines = lines};
  const QString rest = QStringList(lines.mid(most - 1)).join(u' ');
  lines.resize(most - 1);
  lines.append(metrics.elidedText(rest, Qt::ElideRight, width));
  return {.lines = lines, .isWhole = false};
}

void StaticText::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(m_color == SystemColor::Text ? palette().color(QPalette::WindowText)
                                              : lookColor(m_color, lookSchemeFor(palette())));
  const QStringList lines = shown().lines;
  const Qt::Alignment alignment = QStyle::visualAlignment(layoutDirection(), m_drawnAlignment);
  QRectF box = visiblePart();
  if (lines.size() > 1) {
    box.setTop(box.top() + kLinesPadding / 2.0);
    box.setHeight(fontMetrics().lineSpacing());
  }
  for (const QString& line : lines) {
    drawTextLine(&painter, box, alignment, line);
    box.translate(0, box.height());
  }
}

// The parent cuts its children off at its edges, so the text is elided before that.
QRectF StaticText::visiblePart() const {
  const QRect room = parentWidget() && !isWindow() ? parentWidget()->rect().translated(-x(), 0) : rect();
  QRect visible = QStyle::visualRect(layoutDirection(), rect(), contentsRect());
  visible.setLeft(qMax(visible.left(), room.left()));
  visible.setRight(qMin(visible.right(), room.right()));
  return visible;
}

bool StaticText::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    const auto* help = static_cast<QHelpEvent*>(event);
    if (!shown().isWhole) {
      QToolTip::showText(help->globalPos(), text().left(mostDrawnCharacters).toHtmlEscaped(), this);
    }
    return true;
  }
  return QLabel::event(event);
}
