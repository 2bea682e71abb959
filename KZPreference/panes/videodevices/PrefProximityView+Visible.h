#pragma once

#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/layout/Resources.h"

// Text and size of the Video devices pane, known before the pane exists.
class PrefProximityViewVisible {
 public:
  static QString autodetectLabel() { return localizedString("Automatically discover nearby devices"); }

  static Size caculateViewSize() {
    // The check box's indicator. The General panes measure in another font, with 20 points for it.
    constexpr double boxWidth = 18;
    return {
        .width = commonLabelWidth(autodetectLabel()) + (marginAtLeftEdge + boxWidth) + 4 + marginAtRightEdge,
        .height = 64};
  }
};
