#pragma once

#include "KZPreference/panes/notifications/SnoozeSubView+Visible.h"
#include "host/KZFoundation/KZConstants.h"

// The row for snoozing a notification.
class SnoozeSubView final : public NotificationRow, public SnoozeSubViewVisible {
  Q_OBJECT

 public:
  SnoozeSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
      : NotificationRow(frame, actionDelegate,
                        {.label = snoozeLabel(),
                         .minutesLabel = minutesLabel(),
                         .minutes = {"3", "5", "10", "15"},
                         .stateKey = kKZMeetintNotificationSnooze,
                         .minutesKey = kKZMeetintNotificationSnoozeMinutes,
                         .clickMethod = "onSnoozeButton",
                         .minutesMethod = "onSnoozeMinutesButton",
                         .report = &PreferenceActionDelegateProtocol::setSnooze}) {}
};
