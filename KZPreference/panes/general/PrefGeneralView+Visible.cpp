#include "KZPreference/panes/general/PrefGeneralView+Visible.h"

#include <algorithm>

#include "KZPreference/layout/Localization.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "KZPreference/panes/general/NonSignInPrefGeneralView+Visible.h"
#include "platform/Text.h"

QString PrefGeneralViewVisible::startCheckingString() {
  return NonSignInPrefGeneralViewVisible::startCheckingString();
}

QString PrefGeneralViewVisible::outlookIntegratingString() {
  return localizedString("Schedule or start Mivra meetings from Microsoft Outlook");
}

Size PrefGeneralViewVisible::caculatePrefGeneralViewSize() {
  const double outlookWidth = sizeOfText(outlookIntegratingString(), FontRole::System, systemFontSize).width;
  const double outlookPaneWidth = marginAtLeftEdge + outlookWidth + marginAtRightEdge + generalCheckboxRoom;
  return {.width = std::max(NonSignInPrefGeneralViewVisible::caculatePrefGeneralViewSize().width,
                            outlookPaneWidth),
          .height = 84};
}
