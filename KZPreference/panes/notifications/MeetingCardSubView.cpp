#include "KZPreference/panes/notifications/MeetingCardSubView.h"

#include "host/KZFoundation/KZConstants.h"

MeetingCardSubView::MeetingCardSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : NotificationRow(frame, actionDelegate,
                      {.label = meetingCardLabel(),
                       .minutesLabel = minutesLabel(),
                       .minutes = {"3", "5", "10", "15"},
                       .stateKey = kKZMeetintNotificationCard,
                       .minutesKey = kKZMeetintNotificationCardMinutes}) {}

void MeetingCardSubView::report(bool state, const QString& minutes) {
  m_actionDelegate->setMeetingCard(state, minutes);
}
