#pragma once

#include <QPainter>
#include <QStyleOption>

#include "platform/LookPalette.h"

class QWidget;

// The style's drawing by kind of control. All rectangles are in the control's own pixels.

struct LookStates {
  bool isEnabled = false;
  bool isHovered = false;
  bool isPressed = false;
  bool isFocused = false;  // by keyboard
};

LookStates lookStatesOf(const QStyleOption& option);
const LookColors& lookColorsOf(const QStyleOption& option);
const QColor& lookBorderOf(const LookColors& colors, const LookStates& states);

// A rounded box with a border of one point inside the rectangle.
void drawLookBox(QPainter* painter, const QRectF& rect, qreal radius, const QBrush& fill,
                 const QColor& border, qreal borderWidth = 1);
void drawLookFocus(QPainter* painter, const QStyleOption& option, const QRectF& rect, qreal radius);
// The gradient of push buttons and pop-ups.
QBrush lookFace(const LookColors& colors, const QRectF& rect);
// A smooth line with round ends.
void drawLookLine(QPainter* painter, const QPolygonF& points, const QColor& color, qreal width);
void drawLookCheckMark(QPainter* painter, const QRectF& box, const QColor& color);

namespace lookButtons {
inline constexpr int kIndicator = 14;
inline constexpr int kIndicatorRoom = 21;  // from the control's edge to its text
void drawPush(const QStyleOptionButton& option, QPainter* painter);
void drawChoice(const QStyleOptionButton& option, bool isRadio, QPainter* painter, const QWidget* widget);
void drawIndicator(const QStyleOption& option, bool isRadio, QPainter* painter);
QSize pushSize(const QStyleOptionButton& option);
QSize choiceSize(const QStyleOptionButton& option);
}  // namespace lookButtons

namespace lookFields {
void draw(const QStyleOption& option, QPainter* painter, const QWidget* widget);
}  // namespace lookFields

namespace lookPopUp {
void draw(const QStyleOptionComboBox& option, QPainter* painter);
void drawLabel(const QStyleOptionComboBox& option, QPainter* painter);
QRect editField(const QRect& rect, Qt::LayoutDirection direction);
QSize size(const QStyleOptionComboBox& option, const QSize& contents);
void drawMenuPanel(const QStyleOption& option, QPainter* painter);
void drawMenuItem(const QStyleOptionMenuItem& option, QPainter* painter);
QSize menuItemSize(const QStyleOptionMenuItem& option);
}  // namespace lookPopUp

namespace lookToolbar {
inline constexpr int kIcon = 24;
inline constexpr int kItemHeight = 50;
inline constexpr int kMargin = 5;  // around the items; the line under the bar is in it
void drawBar(const QStyleOption& option, QPainter* painter);
void drawItem(const QStyleOptionToolButton& option, QPainter* painter);
void drawExtension(const QStyleOption& option, QPainter* painter);
QSize itemSize(const QStyleOptionToolButton& option);
}  // namespace lookToolbar

namespace lookTabs {
bool isSwitch(const QStyleOptionTab& option);  // a row of tabs; only those are drawn here
void drawTab(const QStyleOptionTab& option, QPainter* painter);
void drawLabel(const QStyleOptionTab& option, QPainter* painter);
QSize tabSize(const QStyleOptionTab& option);
}  // namespace lookTabs

// Tables, lists and read-only texts.
namespace lookLists {
inline constexpr int kFrame = 2;       // room for the focus ring
inline constexpr int kTextMargin = 4;  // of cells and headings alike
bool isList(const QWidget* widget);
void drawFrame(const QStyleOption& option, QPainter* painter);
void drawHeading(const QStyleOption& option, QPainter* painter);  // or the empty rest of the header
void drawCellFocus(const QStyleOptionFocusRect& option, QPainter* painter);
}  // namespace lookLists

namespace lookScrollBar {
inline constexpr int kExtent = 10;
void draw(const QStyleOptionSlider& option, QPainter* painter);
QRect part(const QStyleOptionSlider& option, QStyle::SubControl part);
}  // namespace lookScrollBar
