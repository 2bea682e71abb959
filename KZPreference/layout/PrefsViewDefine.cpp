#include "KZPreference/layout/PrefsViewDefine.h"

#include "platform/Text.h"

double commonLabelWidth(const QString& text) {
  return sizeOfText(text, FontRole::Label, 13).width + textPad;
}

double labelTextWidth(const QString& text) {
  return sizeOfText(text, FontRole::Label, labelFontSize).width;
}

double systemTextWidth(const QString& text) {
  return sizeOfText(text, FontRole::System, labelFontSize).width;
}
