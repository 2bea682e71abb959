#include "KZPreference/panes/account/PrefAccountView+Visible.h"

#include <algorithm>

#include "KZPreference/layout/Localization.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "host/KZUtility/KZPlistFileHandle.h"

QString PrefAccountViewVisible::fullNameLabel() {
  return localizedString("Full name:");
}
QString PrefAccountViewVisible::siteUrlLabel() {
  return localizedString("Mivra site URL:");
}
QString PrefAccountViewVisible::emailAddressLabel() {
  return localizedString("Email address:");
}
QString PrefAccountViewVisible::changeSiteButtonLabel() {
  return localizedString("Change");
}

double PrefAccountViewVisible::labelWidth() {
  return std::max({systemTextWidth(fullNameLabel()), systemTextWidth(siteUrlLabel()),
                   systemTextWidth(emailAddressLabel())}) +
         textPad;
}

double PrefAccountViewVisible::buttonWidth() {
  return systemTextWidth(changeSiteButtonLabel()) + textPad;
}

double PrefAccountViewVisible::contentWidth() {
  const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
  const double siteWidth =
      systemTextWidth(profile.siteName()) + marginBetweenContentAndButton + buttonWidth();
  return std::max({systemTextWidth(profile.displayName()), systemTextWidth(profile.userName()), siteWidth}) +
         textPad;
}

Size PrefAccountViewVisible::caculateViewSize() {
  return {.width = marginAtLeftEdge + labelWidth() + marginBetweenLabelAndContent + contentWidth() +
                   marginAtRightEdge,
          .height = 110};
}
