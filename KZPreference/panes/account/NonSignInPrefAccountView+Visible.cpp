#include "KZPreference/panes/account/NonSignInPrefAccountView+Visible.h"

#include <algorithm>

#include "KZPreference/layout/Localization.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/Text.h"

QString NonSignInPrefAccountViewVisible::accountLabel() {
  return localizedString("Account");
}
QString NonSignInPrefAccountViewVisible::fullNameLabel() {
  return localizedString("Your name:");
}
QString NonSignInPrefAccountViewVisible::emailAddressLabel() {
  return localizedString("Your email address:");
}
QString NonSignInPrefAccountViewVisible::editButtonLabel() {
  return localizedString("Edit");
}
QString NonSignInPrefAccountViewVisible::applyButtonLabel() {
  return localizedString("Save");
}

double NonSignInPrefAccountViewVisible::labelWidth() {
  return std::max(systemTextWidth(fullNameLabel()), systemTextWidth(emailAddressLabel())) + textPad;
}

double NonSignInPrefAccountViewVisible::buttonWidthWithTitle(const QString& title) {
  return systemTextWidth(title) + textPad;
}

double NonSignInPrefAccountViewVisible::contentWidth() {
  const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
  return std::max(systemTextWidth(profile.displayName()), systemTextWidth(profile.userName())) + textPad;
}

Size NonSignInPrefAccountViewVisible::accountLabelSize() {
  return sizeOfText(accountLabel(), FontRole::BoldSystem, boldLabelFontSize);
}

// Counted from the first margin although the rows begin at the second, so the fields end 4 points from the
// edge.
Size NonSignInPrefAccountViewVisible::caculateViewSize() {
  return {.width =
              marginAtLeftEdge + labelWidth() + marginBetweenLabelAndContent + fieldWidth + marginAtRightEdge,
          .height = 136};
}
