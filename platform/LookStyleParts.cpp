#include "platform/LookStyleParts.h"

LookStates lookStatesOf(const QStyleOption& option) {
  const bool isEnabled = option.state & QStyle::State_Enabled;
  return {.isEnabled = isEnabled,
          .isHovered = isEnabled && (option.state & QStyle::State_MouseOver),
          .isPressed = isEnabled && (option.state & QStyle::State_Sunken),
          .isFocused =
              (option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_KeyboardFocusChange)};
}

const LookColors& lookColorsOf(const QStyleOption& option) {
  return lookColorsFor(lookSchemeFor(option.palette));
}

const QColor& lookBorderOf(const LookColors& colors, const LookStates& states) {
  if (!states.isEnabled) return colors.disabledBorder;
  return states.isHovered ? colors.borderHover : colors.border;
}

void drawLookBox(QPainter* painter, const QRectF& rect, qreal radius, const QBrush& fill,
                 const QColor& border, qreal borderWidth) {
  const qreal inset = borderWidth / 2;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(QPen(border, borderWidth));
  painter->setBrush(fill);
  painter->drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), radius - inset, radius - inset);
  painter->restore();
}

void drawLookFocus(QPainter* painter, const QStyleOption& option, const QRectF& rect, qreal radius) {
  drawLookBox(painter, rect, radius, Qt::NoBrush, option.palette.color(QPalette::Active, QPalette::Highlight),
              lookColorsOf(option).focusWidth);
}

QBrush lookFace(const LookColors& colors, const QRectF& rect) {
  QLinearGradient face(rect.topLeft(), rect.bottomLeft());
  face.setColorAt(0, colors.faceTop);
  face.setColorAt(1, colors.faceBottom);
  return face;
}

void drawLookLine(QPainter* painter, const QPolygonF& points, const QColor& color, qreal width) {
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter->setBrush(Qt::NoBrush);
  painter->drawPolyline(points);
  painter->restore();
}

void drawLookCheckMark(QPainter* painter, const QRectF& box, const QColor& color) {
  const auto at = [&box](qreal x, qreal y) {
    return QPointF(box.left() + box.width() * x, box.top() + box.height() * y);
  };
  drawLookLine(painter, {{at(0.25, 0.53), at(0.43, 0.71), at(0.75, 0.30)}}, color, box.width() / 8);
}
