#include "KZPreference/panes/notifications/SnoozeSubView+Visible.h"

#include "KZPreference/layout/Localization.h"
#include "KZPreference/panes/notifications/NotificationRowSize.h"

QString SnoozeSubViewVisible::snoozeLabel() {
  return localizedString("Snooze");
}
QString SnoozeSubViewVisible::minutesLabel() {
  return localizedString("minutes after Snooze.");
}
Size SnoozeSubViewVisible::caculateViewSize() {
  return notificationRowSize(minutesLabel());
}
