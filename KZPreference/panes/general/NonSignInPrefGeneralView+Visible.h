#pragma once

#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/layout/Resources.h"

// Text and size of the guest's General pane, known before the pane exists.
class NonSignInPrefGeneralViewVisible {
 public:
  static QString startCheckingString() {
    return localizedString("Start Brenn Mivra Meetings when my computer starts");
  }

  static Size caculatePrefGeneralViewSize() {
    return {.width = widthWithCheckbox(startCheckingString()), .height = 64};
  }

 protected:
  static double widthWithCheckbox(const QString& title) {
    constexpr double boxWidth = 20;
    return marginAtLeftEdge + sizeOfText(title, FontRole::System, systemFontSize).width + marginAtRightEdge +
           boxWidth;
  }
};
