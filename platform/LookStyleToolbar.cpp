#include <QStyle>

#include "platform/LookStyleParts.h"
#include "platform/Text.h"

namespace {

constexpr int kLabelPixels = 11;
constexpr int kItemPadding = 6;  // from the tile's edge to the label
constexpr int kItemGap = 4;      // on each side of the tile
constexpr int kIconTop = 5;
constexpr int kLabelTop = 31;
constexpr int kLabelHeight = 17;
constexpr qreal kTileRadius = 6;

QFont itemFont() {
  return fontFor(FontRole::Label, kLabelPixels);
}

}  // namespace

namespace lookToolbar {

void drawBar(const QStyleOption& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  painter->fillRect(option.rect, colors.toolbar);
  painter->fillRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1, colors.toolbarLine);
}

QSize itemSize(const QStyleOptionToolButton& option) {
  const int label = QFontMetrics(itemFont()).horizontalAdvance(option.text);
  return {qMax(label, kIcon) + 2 * (kItemPadding + kItemGap), kItemHeight};
}

void drawItem(const QStyleOptionToolButton& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  const LookStates states = lookStatesOf(option);
  const bool isSelected = option.state & QStyle::State_On;
  const QRect tile = option.rect.adjusted(kItemGap, 0, -kItemGap, 0);
  if (states.isPressed) {
    drawLookBox(painter, tile, kTileRadius, colors.tilePressed, colors.tileBorder);
  } else if (isSelected) {
    drawLookBox(painter, tile, kTileRadius, colors.tile, colors.tileBorder);
  } else if (states.isHovered) {
    drawLookBox(painter, tile, kTileRadius, colors.tileHover, colors.tileBorder);
  }
  if (isSelected && states.isEnabled) {
    const QRectF line(tile.left() + kTileRadius, tile.bottom() - 1, tile.width() - 2 * kTileRadius, 2);
    painter->fillRect(line, option.palette.color(QPalette::Highlight));
  }
  if (states.isFocused) drawLookFocus(painter, option, tile, kTileRadius);

  const QRect icon(option.rect.left() + (option.rect.width() - kIcon) / 2, option.rect.top() + kIconTop,
                   kIcon, kIcon);
  option.icon.paint(painter, icon, Qt::AlignCenter, states.isEnabled ? QIcon::Normal : QIcon::Disabled,
                    isSelected && states.isEnabled ? QIcon::On : QIcon::Off);
  const QRect label(option.rect.left(), option.rect.top() + kLabelTop, option.rect.width(), kLabelHeight);
  painter->setFont(itemFont());
  painter->setPen(!states.isEnabled ? option.palette.color(QPalette::Disabled, QPalette::ButtonText)
                  : isSelected      ? option.palette.color(QPalette::Link)
                                    : colors.toolbarText);
  painter->drawText(label, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextHideMnemonic, option.text);
}

void drawExtension(const QStyleOption& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  const LookStates states = lookStatesOf(option);
  const QRect& tile = option.rect;
  if (states.isHovered || states.isPressed) {
    drawLookBox(painter, tile, kTileRadius, states.isPressed ? colors.tilePressed : colors.tileHover,
                colors.tileBorder);
  }
  if (states.isFocused) drawLookFocus(painter, option, tile, kTileRadius);
  const qreal forward = option.direction == Qt::RightToLeft ? -1 : 1;
  for (const qreal x : {-3.0, 2.0}) {
    const QPointF tip = QRectF(tile).center() + QPointF(forward * (x + 2), 0);
    drawLookLine(painter, {{tip + QPointF(-3 * forward, -3.5), tip, tip + QPointF(-3 * forward, 3.5)}},
                 colors.toolbarText, 1.5);
  }
}

}  // namespace lookToolbar
