#pragma once

#include "KZPreference/layout/Resources.h"
#include "KZPreference/panes/notifications/NotificationRow.h"

// Texts and size of the row for meeting notifications, known before it exists.
class MeetingAlertsSubViewVisible {
 public:
  static QString meetingAlertsLabel() { return localizedString("Meeting notifications"); }
  static QString minutesLabel() { return localizedString("minutes before scheduled start time."); }
  static Size caculateViewSize() { return NotificationRow::sizeWith(minutesLabel()); }
};
