#include "KZPreference/panes/general/NonSignInPrefGeneralView+Visible.h"

#include "KZPreference/layout/Localization.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "platform/Text.h"

QString NonSignInPrefGeneralViewVisible::startCheckingString() {
  return localizedString("Start Brenn Mivra Meetings when my computer starts");
}

Size NonSignInPrefGeneralViewVisible::caculatePrefGeneralViewSize() {
  const double textWidth = sizeOfText(startCheckingString(), FontRole::System, systemFontSize).width;
  return {.width = marginAtLeftEdge + textWidth + marginAtRightEdge + generalCheckboxRoom, .height = 64};
}
