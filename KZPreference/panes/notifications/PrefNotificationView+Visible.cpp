#include "KZPreference/panes/notifications/PrefNotificationView+Visible.h"

#include <algorithm>

#include "KZPreference/panes/notifications/MeetingAlertsSubView+Visible.h"
#include "KZPreference/panes/notifications/MeetingCardSubView+Visible.h"
#include "KZPreference/panes/notifications/SnoozeSubView+Visible.h"

Size PrefNotificationViewVisible::caculateViewSize() {
  return {.width = std::max({MeetingAlertsSubViewVisible::caculateViewSize().width,
                             SnoozeSubViewVisible::caculateViewSize().width,
                             MeetingCardSubViewVisible::caculateViewSize().width}),
          .height = 88};
}
