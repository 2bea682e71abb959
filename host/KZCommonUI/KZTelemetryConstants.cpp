#include "host/KZCommonUI/KZTelemetryConstants.h"

#include "host/KZFoundation/KZConstantRegistry.h"

const QString TelemetryKey_MetricName = registeredConstant("TelemetryKey_MetricName");
const QString TelemetryKey_Values = registeredConstant("TelemetryKey_Values");
const QString TelemetryKey_FeatureName = registeredConstant("TelemetryKey_FeatureName");
const QString TelemetryKey_ActionFrom = registeredConstant("TelemetryKey_ActionFrom");
const QString TelemetryKey_ClickFrom = registeredConstant("TelemetryKey_ClickFrom");
const QString TelemetryKey_Boolean = registeredConstant("TelemetryKey_Boolean");
const QString TelemetryKey_MeetingAlertMinutes = registeredConstant("TelemetryKey_MeetingAlertMinutes");
const QString TelemetryKey_CalendarListDaysCount = registeredConstant("TelemetryKey_CalendarListDaysCount");
const QString TelemetryValue_MetricName_KZMetric = registeredConstant("TelemetryValue_MetricName_KZMetric");
const QString TelemetryValue_ActionFrom_APP = registeredConstant("TelemetryValue_ActionFrom_APP");
const QString TelemetryValue_ActionFrom_Outlook = registeredConstant("TelemetryValue_ActionFrom_Outlook");
const QString TelemetryValue_ClickFrom_Preferences =
    registeredConstant("TelemetryValue_ClickFrom_Preferences");
const QString TelemetryValue_BooleanTrue = registeredConstant("TelemetryValue_BooleanTrue");
const QString TelemetryValue_BooleanFalse = registeredConstant("TelemetryValue_BooleanFalse");
const QString TelemetryValue_FeatureName_Click_Preferences =
    registeredConstant("TelemetryValue_FeatureName_Click_Preferences");
const QString TelemetryValue_FeatureName_Click_CheckForUpdates =
    registeredConstant("TelemetryValue_FeatureName_Click_CheckForUpdates");
const QString TelemetryValue_FeatureName_Click_JoinByNumber =
    registeredConstant("TelemetryValue_FeatureName_Click_JoinByNumber");
const QString TelemetryValue_FeatureName_Click_CalendarSourceNone =
    registeredConstant("TelemetryValue_FeatureName_Click_CalendarSourceNone");
const QString TelemetryValue_FeatureName_Click_CalendarSourceMivra =
    registeredConstant("TelemetryValue_FeatureName_Click_CalendarSourceMivra");
const QString TelemetryValue_FeatureName_Click_CalendarSourceGoogle =
    registeredConstant("TelemetryValue_FeatureName_Click_CalendarSourceGoogle");
const QString TelemetryValue_FeatureName_Click_CalendarSourceOutlook =
    registeredConstant("TelemetryValue_FeatureName_Click_CalendarSourceOutlook");
const QString TelemetryValue_FeatureName_Click_ApplyExchangeAccount =
    registeredConstant("TelemetryValue_FeatureName_Click_ApplyExchangeAccount");
const QString TelemetryValue_FeatureName_Click_EditGuestInfo =
    registeredConstant("TelemetryValue_FeatureName_Click_EditGuestInfo");
const QString TelemetryValue_FeatureName_Click_EditMeetingNowSettings =
    registeredConstant("TelemetryValue_FeatureName_Click_EditMeetingNowSettings");
const QString TelemetryValue_FeatureName_Click_PreferenceMeetingAlert =
    registeredConstant("TelemetryValue_FeatureName_Click_PreferenceMeetingAlert");
const QString TelemetryValue_FeatureName_Click_PreferenceMeetingAlertMinutes =
    registeredConstant("TelemetryValue_FeatureName_Click_PreferenceMeetingAlertMinutes");
const QString TelemetryValue_FeatureName_Click_SelectCalendarListDays =
    registeredConstant("TelemetryValue_FeatureName_Click_SelectCalendarListDays");
const QString TelemetryValue_FeatureName_Click_PreferenceVideoDeviceAutodetect =
    registeredConstant("TelemetryValue_FeatureName_Click_PreferenceVideoDeviceAutodetect");
