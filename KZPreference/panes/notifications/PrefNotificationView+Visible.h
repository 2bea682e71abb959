#pragma once

#include <algorithm>

#include "KZPreference/panes/notifications/MeetingAlertsSubView+Visible.h"
#include "KZPreference/panes/notifications/MeetingCardSubView+Visible.h"
#include "KZPreference/panes/notifications/SnoozeSubView+Visible.h"

// The size of the Notifications pane, which is as wide as the widest of all three rows, although it shows
// one.
class PrefNotificationViewVisible {
 public:
  static Size caculateViewSize() {
    return {.width = std::max({MeetingAlertsSubViewVisible::caculateViewSize().width,
                               SnoozeSubViewVisible::caculateViewSize().width,
                               MeetingCardSubViewVisible::caculateViewSize().width}),
            .height = 88};
  }
};
