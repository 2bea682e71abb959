#include <QStyle>
#include <QWidget>

#include "platform/LookStyleParts.h"
#include "platform/Text.h"

namespace {

constexpr qreal kPushRadius = 5;
constexpr int kPushPadding = 20;
constexpr int kPushHeight = 20;
constexpr int kChoiceHeight = 16;

QRect choiceBox(const QStyleOption& option) {
  const QRect box(option.rect.left() + 1, option.rect.center().y() - lookButtons::kIndicator / 2 + 1,
                  lookButtons::kIndicator, lookButtons::kIndicator);
  return QStyle::visualRect(option.direction, option.rect, box);
}

void drawShape(QPainter* painter, const QRectF& rect, bool isRadio, const QColor& fill, const QColor& border,
               qreal width) {
  drawLookBox(painter, rect, isRadio ? rect.width() : rect.width() / 4, fill, border, width);
}

}  // namespace

namespace lookButtons {

QSize pushSize(const QStyleOptionButton& option) {
  return {option.fontMetrics.horizontalAdvance(option.text) + 2 * kPushPadding,
          qMax(kPushHeight, option.fontMetrics.height() + 4)};
}

QSize choiceSize(const QStyleOptionButton& option) {
  // The line below a mnemonic may be lower than the font's own line: in another script, another font draws
  // it.
  const bool isMarked = option.text.contains(u'&');
  const int height = isMarked ? option.fontMetrics.size(Qt::TextShowMnemonic, option.text).height()
                              : option.fontMetrics.height();
  return {kIndicatorRoom + option.fontMetrics.horizontalAdvance(option.text) + 2,
          qMax(kChoiceHeight, height)};
}

void drawPush(const QStyleOptionButton& option, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  const LookStates states = lookStatesOf(option);
  const bool isDefault = states.isEnabled && (option.features & QStyleOptionButton::DefaultButton);
  const QRectF rect = option.rect;
  QColor text = option.palette.color(QPalette::ButtonText);
  if (isDefault) {
    const QColor accent = option.palette.color(QPalette::Highlight);
    const QColor fill = states.isPressed ? colors.accentPressed : accent;
    text = option.palette.color(QPalette::HighlightedText);
    drawLookBox(painter, rect, kPushRadius, fill, states.isHovered ? colors.accentPressed : fill);
  } else if (states.isPressed) {
    drawLookBox(painter, rect, kPushRadius, colors.facePressed, colors.borderHover);
  } else {
    const QBrush fill = states.isEnabled ? lookFace(colors, rect) : option.palette.window();
    drawLookBox(painter, rect, kPushRadius, fill, lookBorderOf(colors, states));
  }
  if (states.isFocused) {
    drawLookFocus(painter, option, rect, kPushRadius);
    if (isDefault) drawLookBox(painter, rect.adjusted(2, 2, -2, -2), kPushRadius - 2, Qt::NoBrush, text);
  }
  painter->setPen(text);
  const QString shown = option.fontMetrics.elidedText(option.text, Qt::ElideRight, option.rect.width() - 8,
                                                      Qt::TextShowMnemonic);
  painter->drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic, shown);
}

void drawIndicator(const QStyleOption& option, bool isRadio, QPainter* painter) {
  const LookColors& colors = lookColorsOf(option);
  const LookStates states = lookStatesOf(option);
  const bool isOn = option.state & QStyle::State_On;
  const bool isContrast = colors.focusWidth > 2;
  QRectF box = option.rect;
  if (states.isFocused) {
    // The ring is in the free point on each side of the indicator.
    const QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
    drawShape(painter, box.adjusted(-1, -1, 1, 1), isRadio, option.palette.color(QPalette::Base), accent, 2);
    if (isOn) box.adjust(2, 2, -2, -2);
  }
  if (!isOn) {
    if (states.isFocused && !states.isPressed) return;
    const QColor face = states.isPressed   ? colors.facePressed
                        : states.isEnabled ? option.palette.color(QPalette::Base)
                                           : option.palette.color(QPalette::Window);
    if (states.isFocused) box.adjust(1, 1, -1, -1);
    drawShape(painter, box, isRadio, face, lookBorderOf(colors, states), 1);
    return;
  }
  const QColor fill = states.isPressed ? colors.accentPressed : option.palette.color(QPalette::Highlight);
  const bool isPale = isContrast && !states.isEnabled;
  drawShape(painter, box, isRadio, fill, isPale ? colors.disabledGlyph : fill, 1);
  const QColor mark = states.isEnabled ? colors.glyph : colors.disabledGlyph;
  if (!isRadio) return drawLookCheckMark(painter, box, mark);
  const qreal dot = box.width() * 0.2;
  QRectF circle(0, 0, 2 * dot, 2 * dot);
  circle.moveCenter(box.center());
  drawLookBox(painter, circle, dot, mark, Qt::transparent, 0);
}

void drawChoice(const QStyleOptionButton& option, bool isRadio, QPainter* painter, const QWidget* widget) {
  QStyleOption box(option);
  box.rect = choiceBox(option);
  drawIndicator(box, isRadio, painter);

  const QRect text =
      QStyle::visualRect(option.direction, option.rect, option.rect.adjusted(kIndicatorRoom, 0, 0, 0));
  const QString shown =
      option.fontMetrics.elidedText(option.text, Qt::ElideRight, text.width(), Qt::TextShowMnemonic);
  const Qt::Alignment alignment = QStyle::visualAlignment(option.direction, Qt::AlignLeft);
  painter->setPen(option.palette.color(widget ? widget->foregroundRole() : QPalette::WindowText));
  if (!shown.contains(u'&')) return drawTextLine(painter, text, alignment, shown);
  painter->drawText(text, alignment | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic, shown);
}

}  // namespace lookButtons
