#include <QAbstractItemView>
#include <QPlainTextEdit>
#include <QVariant>

#include "platform/LookStyleParts.h"

namespace {

constexpr qreal kFieldRadius = 4.5;
constexpr int kHeadingGap = 5;  // above and below a separator

bool hasFocusRing(const QWidget* widget) {
  const QVariant wish = widget ? widget->property("focusRing") : QVariant();
  return !wish.isValid() || wish.toBool();
}

}  // namespace

namespace lookFields {

void draw(const QStyleOption& option, QPainter* painter, const QWidget* widget) {
  const LookColors& colors = lookColorsOf(option);
  const LookStates states = lookStatesOf(option);
  const bool isFocused = states.isEnabled && (option.state & QStyle::State_HasFocus);
  const QBrush fill = states.isEnabled ? option.palette.base() : option.palette.window();
  const QColor accent = option.palette.color(QPalette::Highlight);
  const QColor border = isFocused ? accent : lookBorderOf(colors, states);
  drawLookBox(painter, option.rect, kFieldRadius, fill, border);
  if (!isFocused) return;
  if (hasFocusRing(widget)) return drawLookFocus(painter, option, option.rect, kFieldRadius);
  // The accent in place of the border hardly differs from it, so a line inside shows the focus.
  QRectF line(0, 0, option.rect.width() - 2 * kFieldRadius, colors.focusWidth - 1);
  line.moveBottomLeft(QPointF(option.rect.left() + kFieldRadius, option.rect.bottom()));
  painter->fillRect(line, accent);
}

}  // namespace lookFields

namespace lookLists {

bool isList(const QWidget* widget) {
  return qobject_cast<const QAbstractItemView*>(widget) || qobject_cast<const QPlainTextEdit*>(widget);
}

void drawFrame(const QStyleOption& option, QPainter* painter) {
  drawLookBox(painter, option.rect, 0, option.palette.base(), lookColorsOf(option).border);
  if (!lookStatesOf(option).isFocused) return;
  const QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
  drawLookBox(painter, option.rect, 0, Qt::NoBrush, accent, kFrame);
}

void drawHeading(const QStyleOption& option, QPainter* painter) {
  const QColor& line = lookColorsOf(option).toolbarLine;
  painter->fillRect(option.rect, option.palette.base());
  painter->fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1, line);
  const auto* heading = qstyleoption_cast<const QStyleOptionHeader*>(&option);
  if (!heading || heading->position == QStyleOptionHeader::End ||
      heading->position == QStyleOptionHeader::OnlyOneSection) {
    return;
  }
  const int x = option.direction == Qt::RightToLeft ? option.rect.left() : option.rect.right();
  painter->fillRect(x, option.rect.top() + kHeadingGap, 1, option.rect.height() - 2 * kHeadingGap, line);
}

void drawCellFocus(const QStyleOptionFocusRect& option, QPainter* painter) {
  if (option.state & QStyle::State_Selected) return;  // the selection shows it
  drawLookBox(painter, option.rect, 0, Qt::NoBrush,
              option.palette.color(QPalette::Active, QPalette::Highlight));
}

}  // namespace lookLists
