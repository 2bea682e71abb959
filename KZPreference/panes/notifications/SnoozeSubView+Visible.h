#pragma once

#include "KZPreference/layout/Resources.h"
#include "KZPreference/panes/notifications/NotificationRow.h"

// Texts and size of the row for snoozing a notification, known before it exists.
class SnoozeSubViewVisible {
 public:
  static QString snoozeLabel() { return localizedString("Snooze"); }
  static QString minutesLabel() { return localizedString("minutes after Snooze."); }
  static Size caculateViewSize() { return NotificationRow::sizeWith(minutesLabel()); }
};
