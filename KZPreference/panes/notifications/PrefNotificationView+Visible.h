#pragma once

#include "platform/Frame.h"

// The size of the Notifications pane: as wide as its widest kind of row, shown or not.
class PrefNotificationViewVisible {
 public:
  static Size caculateViewSize();
};
