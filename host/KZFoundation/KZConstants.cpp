#include "host/KZFoundation/KZConstants.h"

#include "host/KZFoundation/KZConstantRegistry.h"

const QString kKZResult = registeredConstant("kKZResult");
const QString kKZSuccess = registeredConstant("kKZSuccess");
const QString kKZFail = registeredConstant("kKZFail");
const QString kKZErrorHandleData = registeredConstant("kKZErrorHandleData");
const QString kKZErrorMessage = registeredConstant("kKZErrorMessage");

const QString kOpenPrefsViewType = registeredConstant("kOpenPrefsViewType");
const QString kPrefsAccountView = registeredConstant("kPrefsAccountView");

const QString kLaunchAtLogin = registeredConstant("kLaunchAtLogin");
const QString kEnableOutlookKZPluginValue = registeredConstant("kEnableOutlookKZPluginValue");
const QString KZLaunchAtLogin = registeredConstant("KZLaunchAtLogin");
const QString KZEnableOutlookKZPlugin = registeredConstant("KZEnableOutlookKZPlugin");

const QString QRT_Passport_email = registeredConstant("QRT_Passport_email");
const QString QRT_Passport_site = registeredConstant("QRT_Passport_site");
const QString QRT_LoginResult_site = registeredConstant("QRT_LoginResult_site");
const QString QRT_LoginResult_cdnUrl = registeredConstant("QRT_LoginResult_cdnUrl");

const QString QRT_Preference_PMRUrl = registeredConstant("QRT_Preference_PMRUrl");
const QString QRT_Preference_PMRSipUrl = registeredConstant("QRT_Preference_PMRSipUrl");

const QString QRT_Require_Link_Action_Type = registeredConstant("QRT_Require_Link_Action_Type");
const QString kPreferences_JoinByNumberLink = registeredConstant("kPreferences_JoinByNumberLink");
const QString AppActionType_JoinByNumber = registeredConstant("AppActionType_JoinByNumber");

const QString kKZMeetintNotificationToast = registeredConstant("kKZMeetintNotificationToast");
const QString kKZMeetintNotificationToastMinutes = registeredConstant("kKZMeetintNotificationToastMinutes");
const QString kKZMeetintNotificationSnooze = registeredConstant("kKZMeetintNotificationSnooze");
const QString kKZMeetintNotificationSnoozeMinutes = registeredConstant("kKZMeetintNotificationSnoozeMinutes");
const QString kKZMeetintNotificationCard = registeredConstant("kKZMeetintNotificationCard");
const QString kKZMeetintNotificationCardMinutes = registeredConstant("kKZMeetintNotificationCardMinutes");

const QString kKZVideoDeviceAutodetect = registeredConstant("kKZVideoDeviceAutodetect");
const QString kproximityCommand = registeredConstant("kproximityCommand");
const QString kstartDetectVD = registeredConstant("kstartDetectVD");

const QString kKZCalendarIntegration = registeredConstant("kKZCalendarIntegration");
const QString kKZCalendarIntegrationSource = registeredConstant("kKZCalendarIntegrationSource");
const QString kKZCalendarIntegrationSourceNone = registeredConstant("kKZCalendarIntegrationSourceNone");
const QString kKZCalendarIntegrationSourceMivRa = registeredConstant("kKZCalendarIntegrationSourceMivRa");
const QString kKZCalendarIntegrationSourceGoogle = registeredConstant("kKZCalendarIntegrationSourceGoogle");
const QString kKZCalendarIntegrationSourceOutlook = registeredConstant("kKZCalendarIntegrationSourceOutlook");
const QString kKZCalendarIntegrationDays = registeredConstant("kKZCalendarIntegrationDays");
const QString kKZCalendarIntegrationDaysDefault =
    registeredConstant("kKZCalendarIntegrationDaysDefault", "7");
const QString kKZCalendarIntegrationExchange = registeredConstant("kKZCalendarIntegrationExchange");
const QString kKZCalendarIntegrationExchangeEmail = registeredConstant("kKZCalendarIntegrationExchangeEmail");
const QString kKZCalendarIntegrationExchangeUsername =
    registeredConstant("kKZCalendarIntegrationExchangeUsername");
const QString kKZCalendarIntegrationExchangeExternalUrl =
    registeredConstant("kKZCalendarIntegrationExchangeExternalUrl");
const QString kKZCalendarIntegrationExchangeInternalUrl =
    registeredConstant("kKZCalendarIntegrationExchangeInternalUrl");
const QString kKZCalendarIntegrationIsOnline = registeredConstant("kKZCalendarIntegrationIsOnline");
const QString kKZCalendarIntegrationOnpremiseCredValid =
    registeredConstant("kKZCalendarIntegrationOnpremiseCredValid");

const QString QRT_ExchangeDiscover_Email = registeredConstant("QRT_ExchangeDiscover_Email");
const QString QRT_ExchangeDiscover_Username = registeredConstant("QRT_ExchangeDiscover_Username");
const QString QRT_ExchangeDiscover_Exchange = registeredConstant("QRT_ExchangeDiscover_Exchange");
const QString QRT_ExchangeDiscover_ExchangeType = registeredConstant("QRT_ExchangeDiscover_ExchangeType");
const QString QRT_ExchangeDiscover_ExchangeTypeOnpremise =
    registeredConstant("QRT_ExchangeDiscover_ExchangeTypeOnpremise");
const QString QRT_ExchangeDiscover_O365LoginParams =
    registeredConstant("QRT_ExchangeDiscover_O365LoginParams");
const QString QRT_CredentialType = registeredConstant("QRT_CredentialType");
const QString QRT_CredentialTypeUsernamePassword = registeredConstant("QRT_CredentialTypeUsernamePassword");
const QString QRT_CredentialTypeOAuthToken = registeredConstant("QRT_CredentialTypeOAuthToken");
const QString QRT_CredentialUsername = registeredConstant("QRT_CredentialUsername");
const QString QRT_CredentialContent = registeredConstant("QRT_CredentialContent");
const QString QRT_ListingMeeting_exchOnlineToken = registeredConstant("QRT_ListingMeeting_exchOnlineToken");
