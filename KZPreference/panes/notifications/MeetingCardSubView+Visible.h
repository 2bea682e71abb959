#pragma once

#include "KZPreference/layout/Resources.h"
#include "KZPreference/panes/notifications/NotificationRow.h"

// Texts and size of the row for the dashboard's card of the next meeting, known before it exists.
class MeetingCardSubViewVisible {
 public:
  static QString meetingCardLabel() { return localizedString("Upcoming Meeting card on dashboard"); }
  static QString minutesLabel() { return localizedString("minutes before scheduled start time."); }
  static Size caculateViewSize() { return NotificationRow::sizeWith(minutesLabel()); }
};
