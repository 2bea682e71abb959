#include <QVariant>
#include <QWidget>

#include "platform/LookStyleParts.h"

namespace {

constexpr qreal kFieldRadius = 4.5;

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
  if (isFocused && hasFocusRing(widget)) drawLookFocus(painter, option, option.rect, kFieldRadius);
}

}  // namespace lookFields
