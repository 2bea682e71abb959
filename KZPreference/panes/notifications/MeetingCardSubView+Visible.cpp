#include "KZPreference/panes/notifications/MeetingCardSubView+Visible.h"

#include "KZPreference/layout/Localization.h"
#include "KZPreference/panes/notifications/NotificationRowSize.h"

QString MeetingCardSubViewVisible::meetingCardLabel() {
  return localizedString("Upcoming Meeting card on dashboard");
}
QString MeetingCardSubViewVisible::minutesLabel() {
  return localizedString("minutes before scheduled start time.");
}
Size MeetingCardSubViewVisible::caculateViewSize() {
  return notificationRowSize(minutesLabel());
}
