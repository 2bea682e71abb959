#include "KZPreference/panes/videodevices/PrefProximityView+Visible.h"

#include "KZPreference/layout/Localization.h"
#include "KZPreference/layout/PrefsViewDefine.h"

namespace {

// Room for the check box's box; the General panes measure otherwise and take 20.
constexpr double kProximityCheckboxRoom = 18;

}  // namespace

QString PrefProximityViewVisible::autodetectLabel() {
  return localizedString("Automatically discover nearby devices");
}

Size PrefProximityViewVisible::caculateViewSize() {
  return {.width = commonLabelWidth(autodetectLabel()) + (marginAtLeftEdge + kProximityCheckboxRoom) + 4 +
                   marginAtRightEdge,
          .height = 64};
}
