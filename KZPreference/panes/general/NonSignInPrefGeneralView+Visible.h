#pragma once

#include <QString>

#include "platform/Frame.h"

// Room for the box of a check box in the General panes, in points.
inline constexpr double generalCheckboxRoom = 20;

// Texts and size of the guest's General pane, known before the pane exists.
class NonSignInPrefGeneralViewVisible {
 public:
  static QString startCheckingString();
  static Size caculatePrefGeneralViewSize();
};
