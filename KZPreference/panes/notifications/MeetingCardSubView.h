#pragma once

#include "KZPreference/panes/notifications/MeetingCardSubView+Visible.h"
#include "host/KZFoundation/KZConstants.h"

// The row for the dashboard's card of the next meeting.
class MeetingCardSubView final : public NotificationRow, public MeetingCardSubViewVisible {
  Q_OBJECT

 public:
  MeetingCardSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
      : NotificationRow(frame, actionDelegate,
                        {.label = meetingCardLabel(),
                         .minutesLabel = minutesLabel(),
                         .minutes = {"3", "5", "10", "15"},
                         .stateKey = kKZMeetintNotificationCard,
                         .minutesKey = kKZMeetintNotificationCardMinutes,
                         .clickMethod = "onMeetingCardButton",
                         .minutesMethod = "onMeetingCardMinutesButton",
                         .report = &PreferenceActionDelegateProtocol::setMeetingCard}) {}
};
