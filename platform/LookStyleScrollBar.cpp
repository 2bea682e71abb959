#include <QStyle>

#include "platform/LookStyleParts.h"

namespace {

constexpr int kShortestThumb = 28;

}  // namespace

namespace lookScrollBar {

QRect part(const QStyleOptionSlider& option, QStyle::SubControl part) {
  const bool isHorizontal = option.orientation == Qt::Horizontal;
  const int length = isHorizontal ? option.rect.width() : option.rect.height();
  const double range = double(option.maximum) - double(option.minimum);
  int thumb = length;
  if (range > 0) {
    thumb = qBound(qMin(kShortestThumb, length), int(length * (option.pageStep / (range + option.pageStep))),
                   length);
  }
  const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                    length - thumb, option.upsideDown);
  const auto along = [&](int from, int extent) {
    const QRect piece = isHorizontal ? QRect(from, 0, extent, option.rect.height())
                                     : QRect(0, from, option.rect.width(), extent);
    return QStyle::visualRect(option.direction, option.rect, piece.translated(option.rect.topLeft()));
  };
  switch (part) {
    case QStyle::SC_ScrollBarGroove:
      return option.rect;
    case QStyle::SC_ScrollBarSlider:
      return along(start, thumb);
    case QStyle::SC_ScrollBarSubPage:
      return along(0, start);
    case QStyle::SC_ScrollBarAddPage:
      return along(start + thumb, length - start - thumb);
    default:
      return {};
  }
}

void draw(const QStyleOptionSlider& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  const LookStates states = lookStatesOf(option);
  const QRectF thumb = part(option, QStyle::SC_ScrollBarSlider).adjusted(2, 2, -2, -2);
  const bool isGrabbed = states.isPressed && (option.activeSubControls & QStyle::SC_ScrollBarSlider);
  const QColor color = isGrabbed || states.isHovered ? colors.scrollThumbHover : colors.scrollThumb;
  const qreal radius = qMin(thumb.width(), thumb.height()) / 2;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->setPen(Qt::NoPen);
  painter->setBrush(color);
  painter->drawRoundedRect(thumb, radius, radius);
  painter->restore();
}

}  // namespace lookScrollBar
