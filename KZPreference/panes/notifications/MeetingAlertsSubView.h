#pragma once

#include "KZPreference/panes/notifications/MeetingAlertsSubView+Visible.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"

// The row for meeting notifications.
class MeetingAlertsSubView final : public NotificationRow, public MeetingAlertsSubViewVisible {
  Q_OBJECT

 public:
  MeetingAlertsSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
      : NotificationRow(frame, actionDelegate,
                        {.label = meetingAlertsLabel(),
                         .minutesLabel = minutesLabel(),
                         .minutes = {"5", "10", "15"},
                         .stateKey = kKZMeetintNotificationToast,
                         .minutesKey = kKZMeetintNotificationToastMinutes,
                         .clickMethod = "onMeetingAlertsButton",
                         .minutesMethod = "onMeetingAlertsMinutesButton",
                         .report = &PreferenceActionDelegateProtocol::setMeetingAlerts,
                         .clickFeature = TelemetryValue_FeatureName_Click_PreferenceMeetingAlert,
                         .minutesFeature = TelemetryValue_FeatureName_Click_PreferenceMeetingAlertMinutes}) {}
};
