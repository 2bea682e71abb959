#include "KZPreference/panes/notifications/MeetingAlertsSubView+Visible.h"

#include "KZPreference/layout/Localization.h"
#include "KZPreference/panes/notifications/NotificationRowSize.h"

QString MeetingAlertsSubViewVisible::meetingAlertsLabel() {
  return localizedString("Meeting notifications");
}
QString MeetingAlertsSubViewVisible::minutesLabel() {
  return localizedString("minutes before scheduled start time.");
}
Size MeetingAlertsSubViewVisible::caculateViewSize() {
  return notificationRowSize(minutesLabel());
}
