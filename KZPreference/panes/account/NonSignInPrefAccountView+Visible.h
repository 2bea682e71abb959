#pragma once

#include <algorithm>

#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/layout/Resources.h"
#include "host/KZUtility/KZPlistFileHandle.h"

// Texts and sizes of the guest's Account pane, known before the pane exists.
class NonSignInPrefAccountViewVisible {
 public:
  static constexpr double fieldWidth = 260;

  static QString accountLabel() { return localizedString("Account"); }
  static QString fullNameLabel() { return localizedString("Your name:"); }
  static QString emailAddressLabel() { return localizedString("Your email address:"); }
  static QString editButtonLabel() { return localizedString("Edit"); }
  static QString applyButtonLabel() { return localizedString("Save"); }

  static Size accountLabelSize() { return titleTextSize(accountLabel()); }
  static double labelWidth() {
    return std::max(systemTextWidth(fullNameLabel()), systemTextWidth(emailAddressLabel())) + textPad;
  }
  static double buttonWidthWithTitle(const QString& title) { return systemTextWidth(title) + textPad; }
  static double contentWidth() {
    const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
    return std::max(systemTextWidth(profile.displayName()), systemTextWidth(profile.userName())) + textPad;
  }
  // Adds the first margin although the rows begin at the second, so the fields end 4 points from the pane's
  // edge.
  static Size caculateViewSize() {
    return {.width = marginAtLeftEdge + labelWidth() + marginBetweenLabelAndContent + fieldWidth +
                     marginAtRightEdge,
            .height = 136};
  }
};
