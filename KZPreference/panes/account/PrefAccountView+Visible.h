#pragma once

#include <algorithm>

#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/layout/Resources.h"
#include "host/KZUtility/KZPlistFileHandle.h"

// Texts and sizes of the signed-in Account pane, known before the pane exists. The content's width follows
// the stored profile.
class PrefAccountViewVisible {
 public:
  static QString fullNameLabel() { return localizedString("Full name:"); }
  static QString siteUrlLabel() { return localizedString("Mivra site URL:"); }
  static QString emailAddressLabel() { return localizedString("Email address:"); }
  static QString changeSiteButtonLabel() { return localizedString("Change"); }

  static double labelWidth() {
    return std::max({systemTextWidth(fullNameLabel()), systemTextWidth(siteUrlLabel()),
                     systemTextWidth(emailAddressLabel())}) +
           textPad;
  }
  static double buttonWidth() { return systemTextWidth(changeSiteButtonLabel()) + textPad; }
  static double contentWidth() {
    const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
    const double site = systemTextWidth(profile.siteName()) + marginBetweenContentAndButton + buttonWidth();
    return std::max({systemTextWidth(profile.displayName()), systemTextWidth(profile.userName()), site}) +
           textPad;
  }
  static Size caculateViewSize() {
    return {.width = marginAtLeftEdge + labelWidth() + marginBetweenLabelAndContent + contentWidth() +
                     marginAtRightEdge,
            .height = 110};
  }
};
