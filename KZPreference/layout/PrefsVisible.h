#pragma once

#include <QString>

#include "KZPreference/layout/PrefsViewDefine.h"
#include "platform/Text.h"

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
