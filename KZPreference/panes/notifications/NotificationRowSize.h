#pragma once

#include "KZPreference/layout/PrefsViewDefine.h"
#include "platform/Frame.h"

// The size of a row with that text after its pop-up.
inline Size notificationRowSize(const QString& minutesLabel) {
  return {.width = secondMarginAtLeftEdge + popupButtonWidth + marginPopupButtonToLabel +
                   commonLabelWidth(minutesLabel) + marginAtRightEdge,
          .height = 48};
}
