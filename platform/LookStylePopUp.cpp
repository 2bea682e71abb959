#include <QStyle>

#include "platform/LookStyleParts.h"
#include "platform/Text.h"

namespace {

constexpr qreal kPopUpRadius = 5;
constexpr int kPopUpTile = 14;
constexpr int kPopUpTileMargin = 3;
constexpr int kPopUpTextMargin = 8;
constexpr int kPopUpHeight = 20;
constexpr int kMenuTextMargin = 24;
constexpr int kMenuEndMargin = 14;
constexpr int kMenuItemHeight = 22;
constexpr int kMenuSeparatorHeight = 9;
constexpr int kMenuShortcutGap = 12;

QRect popUpTile(const QStyleOption& option) {
  const QRect& rect = option.rect;
  const QRect tile(rect.right() + 1 - kPopUpTileMargin - kPopUpTile,
                   rect.top() + (rect.height() - kPopUpTile) / 2, kPopUpTile, kPopUpTile);
  return QStyle::visualRect(option.direction, rect, tile);
}

void drawChevrons(QPainter* painter, const QRect& tile, const QColor& color) {
  const QPointF middle = QRectF(tile).center();
  for (const qreal up : {-1.0, 1.0}) {
    drawLookLine(
        painter,
        {{middle + QPointF(-2.5, up * 1.9), middle + QPointF(0, up * 4.3), middle + QPointF(2.5, up * 1.9)}},
        color, 1.4);
  }
}

}  // namespace

namespace lookPopUp {

QRect editField(const QRect& rect, Qt::LayoutDirection direction) {
  const QRect field = rect.adjusted(kPopUpTextMargin, 0, -(kPopUpTileMargin + kPopUpTile + 2), 0);
  return QStyle::visualRect(direction, rect, field);
}

QSize size(const QStyleOptionComboBox& option, const QSize& contents) {
  return {contents.width() + kPopUpTextMargin + kPopUpTile + kPopUpTileMargin + 2,
          qMax(kPopUpHeight, option.fontMetrics.height())};
}

void draw(const QStyleOptionComboBox& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  const LookStates states = lookStatesOf(option);
  // A taller control has a free point above and below, for the focus ring.
  const qreal spare = option.rect.height() > kPopUpHeight ? 1 : 0;
  const QRectF rect = QRectF(option.rect).adjusted(0, spare, 0, -spare);
  const bool isOpen = states.isEnabled && (option.state & QStyle::State_On);
  const bool isDown = states.isPressed || isOpen;
  const QBrush fill = !states.isEnabled ? option.palette.window()
                      : isDown          ? QBrush(colors.facePressed)
                                        : lookFace(colors, rect);
  drawLookBox(painter, rect, kPopUpRadius, fill, lookBorderOf(colors, states));

  const QRect tile = popUpTile(option);
  const QColor accent = isDown ? colors.accentPressed : option.palette.color(QPalette::Highlight);
  drawLookBox(painter, tile, 4, accent, accent);
  drawChevrons(painter, tile, states.isEnabled ? colors.glyph : colors.disabledGlyph);
  if (states.isFocused) drawLookFocus(painter, option, option.rect, kPopUpRadius + spare);
}

void drawLabel(const QStyleOptionComboBox& option, QPainter* painter) {
  const QRect field = editField(option.rect, option.direction);
  painter->setPen(option.palette.color(QPalette::ButtonText));
  drawTextLine(painter, field, QStyle::visualAlignment(option.direction, Qt::AlignLeft),
               option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, field.width()));
}

void drawMenuPanel(const QStyleOption& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  painter->fillRect(option.rect, colors.border);
  painter->fillRect(option.rect.adjusted(1, 1, -1, -1), colors.menu);
}

// A menu adds the room of the shortcut, which follows a tab.
QSize menuItemSize(const QStyleOptionMenuItem& option) {
  if (option.menuItemType == QStyleOptionMenuItem::Separator) return {kMenuTextMargin, kMenuSeparatorHeight};
  const QFontMetrics metrics(option.font);
  const int text = metrics.size(Qt::TextShowMnemonic, option.text.section(u'\t', 0, 0)).width();
  const int gap = option.text.contains(u'\t') ? kMenuShortcutGap : 0;
  return {kMenuTextMargin + text + gap + kMenuEndMargin, qMax(kMenuItemHeight, metrics.height() + 6)};
}

void drawMenuItem(const QStyleOptionMenuItem& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  painter->fillRect(option.rect, colors.menu);
  if (option.menuItemType == QStyleOptionMenuItem::Separator) {
    const QRect& rect = option.rect;
    return painter->fillRect(rect.left() + 10, rect.center().y(), rect.width() - 20, 1, colors.border);
  }
  const bool isEnabled = option.state & QStyle::State_Enabled;
  const bool isSelected = isEnabled && (option.state & QStyle::State_Selected);
  if (isSelected) {
    const QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
    drawLookBox(painter, option.rect.adjusted(3, 0, -3, 0), 4, accent, accent);
  }
  const QColor text = option.palette.color(isEnabled ? QPalette::Active : QPalette::Disabled,
                                           isSelected ? QPalette::HighlightedText : QPalette::Text);
  if (option.checked) {
    const QRect mark(option.rect.left() + 7, option.rect.center().y() - 5, 12, 12);
    drawLookCheckMark(painter, QStyle::visualRect(option.direction, option.rect, mark), text);
  }
  const QRect room = QStyle::visualRect(option.direction, option.rect,
                                        option.rect.adjusted(kMenuTextMargin, 0, -kMenuEndMargin / 2, 0));
  painter->setFont(option.font);
  painter->setPen(text);
  const auto drawPart = [&](const QString& part, Qt::Alignment side) {
    const auto alignment = int(QStyle::visualAlignment(option.direction, side | Qt::AlignVCenter));
    painter->drawText(room, alignment | Qt::TextSingleLine | Qt::TextShowMnemonic, part);
  };
  drawPart(option.text.section(u'\t', 0, 0), Qt::AlignLeft);
  drawPart(option.text.section(u'\t', 1), Qt::AlignRight);
}

}  // namespace lookPopUp
