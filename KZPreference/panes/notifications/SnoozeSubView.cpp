#include "KZPreference/panes/notifications/SnoozeSubView.h"

#include "host/KZFoundation/KZConstants.h"

SnoozeSubView::SnoozeSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : NotificationRow(frame, actionDelegate,
                      {.label = snoozeLabel(),
                       .minutesLabel = minutesLabel(),
                       .minutes = {"3", "5", "10", "15"},
                       .stateKey = kKZMeetintNotificationSnooze,
                       .minutesKey = kKZMeetintNotificationSnoozeMinutes}) {}

void SnoozeSubView::report(bool state, const QString& minutes) {
  m_actionDelegate->setSnooze(state, minutes);
}
