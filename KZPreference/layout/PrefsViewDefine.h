#pragma once

#include <QString>

#include "platform/Text.h"

// The metrics that all panes share, in points, and how their texts are measured.
inline constexpr qint32 defaultPrefsViewWidth = 320;
inline constexpr qint32 marginAtLeftEdge = 32;
inline constexpr qint32 marginAtRightEdge = 32;
inline constexpr qint32 marginAtTopEdge = 24;
inline constexpr qint32 marginAtBottomEdge = 24;
inline constexpr qint32 secondMarginAtLeftEdge = 60;
inline constexpr qint32 thirdMarginAtLeftEnd = 96;
inline constexpr qint32 marginBetweenSubViews = 36;
inline constexpr qint32 marginBetweenLabelAndContent = 10;
inline constexpr qint32 marginBetweenContentAndButton = 6;
inline constexpr qint32 marginLabelToContent = 10;
inline constexpr qint32 verticalMarginFirstToSecondLevel = 12;
inline constexpr qint32 commonLabelHeight = 16;
inline constexpr qint32 popupButtonWidth = 50;
inline constexpr qint32 popupButtonHeight = 22;
inline constexpr qint32 marginPopupButtonToLabel = 6;
inline constexpr qint32 checkboxButtonHeight = 16;
inline constexpr qint32 boldLabelFontSize = 16;
inline constexpr qint32 labelFontSize = 13;

// Added to a text's width where it becomes a control's or a column's width.
inline constexpr double textPad = 4.0;

// Without the pad, in the fonts of labels, of titles, and of buttons and fields.
inline Size labelTextSize(const QString& text) {
  return sizeOfText(text, FontRole::Label, labelFontSize);
}
inline double labelTextWidth(const QString& text) {
  return labelTextSize(text).width;
}
inline Size titleTextSize(const QString& text) {
  return sizeOfText(text, FontRole::BoldSystem, boldLabelFontSize);
}
inline double systemTextWidth(const QString& text) {
  return sizeOfText(text, FontRole::System, labelFontSize).width;
}

// In the label font, with the pad.
inline double commonLabelWidth(const QString& text) {
  return labelTextWidth(text) + textPad;
}
