#include "platform/LookStyleParts.h"

#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace {

struct Outline {
  QRectF rect;
  qreal width;
};

// On whole pixels of the device: between two, a thin line would be pale. A square stays one.
Outline onPixels(const QPainter& painter, const QRectF& rect, qreal width) {
  const QTransform toDevice = painter.deviceTransform();
  const qreal scale = toDevice.m11();
  if (scale <= 0 || toDevice.type() > QTransform::TxScale) return {rect, width};
  const QRectF exact = toDevice.mapRect(rect);
  const QPointF corner(std::round(exact.left()), std::round(exact.top()));
  QSizeF size(std::round(exact.right()) - corner.x(), std::round(exact.bottom()) - corner.y());
  if (rect.width() == rect.height()) size.rheight() = size.rwidth() = std::round(exact.width());
  return {toDevice.inverted().mapRect(QRectF(corner, size)),
          std::max(1.0, std::round(width * scale)) / scale};
}

}  // namespace

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
  const auto [box, width] = borderWidth > 0 ? onPixels(*painter, rect, borderWidth) : Outline{rect, 0};
  const auto inside = [box = box](qreal inset) { return box.adjusted(inset, inset, -inset, -inset); };
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(fill);
  painter->drawRoundedRect(inside(width / 2), radius - width / 2, radius - width / 2);
  // Filled, because a thin curve that is stroked comes out paler.
  QPainterPath outline;
  outline.addRoundedRect(box, radius, radius);
  outline.addRoundedRect(inside(width), radius - width, radius - width);
  painter->fillPath(outline, border);
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
