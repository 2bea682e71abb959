#pragma once

#include <algorithm>

#include "KZPreference/panes/general/NonSignInPrefGeneralView+Visible.h"

// Texts and size of the signed-in General pane, known before the pane exists.
class PrefGeneralViewVisible : public NonSignInPrefGeneralViewVisible {
 public:
  static QString outlookIntegratingString() {
    return localizedString("Schedule or start Mivra meetings from Microsoft Outlook");
  }

  static Size caculatePrefGeneralViewSize() {
    return {.width = std::max(widthWithCheckbox(startCheckingString()),
                              widthWithCheckbox(outlookIntegratingString())),
            .height = 84};
  }
};
