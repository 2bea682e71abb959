#include "KZPreference/panes/notifications/MeetingAlertsSubView.h"

#include "KZPreference/contract/PreferenceTelemetry.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"

MeetingAlertsSubView::MeetingAlertsSubView(const Frame& frame,
                                           PreferenceActionDelegateProtocol* actionDelegate)
    : NotificationRow(frame, actionDelegate,
                      {.label = meetingAlertsLabel(),
                       .minutesLabel = minutesLabel(),
                       .minutes = {"5", "10", "15"},
                       .stateKey = kKZMeetintNotificationToast,
                       .minutesKey = kKZMeetintNotificationToastMinutes}) {}

void MeetingAlertsSubView::report(bool state, const QString& minutes) {
  m_actionDelegate->setMeetingAlerts(state, minutes);
}

void MeetingAlertsSubView::reportClick(bool state) {
  PreferenceTelemetry::sharedInstance().writeFeatrueName(
      TelemetryValue_FeatureName_Click_PreferenceMeetingAlert, TelemetryKey_Boolean,
      state ? TelemetryValue_BooleanTrue : TelemetryValue_BooleanFalse);
}

void MeetingAlertsSubView::reportMinutes(const QString& minutes) {
  PreferenceTelemetry::sharedInstance().writeFeatrueName(
      TelemetryValue_FeatureName_Click_PreferenceMeetingAlertMinutes, TelemetryKey_MeetingAlertMinutes,
      minutes);
}
