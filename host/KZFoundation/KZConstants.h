#pragma once

#include <QString>

#include "host/KZFoundation/KZHostExport.h"

// Keys and values of the contents of commands and notifications. The text of each is its own name, except
// where users see it. Some are compared by identity: pass the constant itself, not a copy of its text.

// Results
KZ_HOST_EXPORT extern const QString kKZResult;
KZ_HOST_EXPORT extern const QString kKZSuccess;
KZ_HOST_EXPORT extern const QString kKZFail;
KZ_HOST_EXPORT extern const QString kKZErrorHandleData;
KZ_HOST_EXPORT extern const QString kKZErrorMessage;

// Window
KZ_HOST_EXPORT extern const QString kOpenPrefsViewType;
KZ_HOST_EXPORT extern const QString kPrefsAccountView;

// General settings
KZ_HOST_EXPORT extern const QString kLaunchAtLogin;
KZ_HOST_EXPORT extern const QString kEnableOutlookKZPluginValue;
KZ_HOST_EXPORT extern const QString KZLaunchAtLogin;
KZ_HOST_EXPORT extern const QString KZEnableOutlookKZPlugin;

// Identity
KZ_HOST_EXPORT extern const QString QRT_Passport_email;
KZ_HOST_EXPORT extern const QString QRT_Passport_site;
KZ_HOST_EXPORT extern const QString QRT_LoginResult_site;
KZ_HOST_EXPORT extern const QString QRT_LoginResult_cdnUrl;

// Personal room
KZ_HOST_EXPORT extern const QString QRT_Preference_PMRUrl;
KZ_HOST_EXPORT extern const QString QRT_Preference_PMRSipUrl;

// Links
KZ_HOST_EXPORT extern const QString QRT_Require_Link_Action_Type;
KZ_HOST_EXPORT extern const QString kPreferences_JoinByNumberLink;
KZ_HOST_EXPORT extern const QString AppActionType_JoinByNumber;

// Meeting notifications
KZ_HOST_EXPORT extern const QString kKZMeetintNotificationToast;
KZ_HOST_EXPORT extern const QString kKZMeetintNotificationToastMinutes;
KZ_HOST_EXPORT extern const QString kKZMeetintNotificationSnooze;
KZ_HOST_EXPORT extern const QString kKZMeetintNotificationSnoozeMinutes;
KZ_HOST_EXPORT extern const QString kKZMeetintNotificationCard;
KZ_HOST_EXPORT extern const QString kKZMeetintNotificationCardMinutes;

// Video devices
KZ_HOST_EXPORT extern const QString kKZVideoDeviceAutodetect;
KZ_HOST_EXPORT extern const QString kproximityCommand;
KZ_HOST_EXPORT extern const QString kstartDetectVD;

// Calendar integration
KZ_HOST_EXPORT extern const QString kKZCalendarIntegration;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationSource;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationSourceNone;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationSourceMivRa;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationSourceGoogle;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationSourceOutlook;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationDays;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationDaysDefault;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationExchange;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationExchangeEmail;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationExchangeUsername;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationExchangeExternalUrl;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationExchangeInternalUrl;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationIsOnline;
KZ_HOST_EXPORT extern const QString kKZCalendarIntegrationOnpremiseCredValid;

// Exchange discovery and credentials
KZ_HOST_EXPORT extern const QString QRT_ExchangeDiscover_Email;
KZ_HOST_EXPORT extern const QString QRT_ExchangeDiscover_Username;
KZ_HOST_EXPORT extern const QString QRT_ExchangeDiscover_Exchange;
KZ_HOST_EXPORT extern const QString QRT_ExchangeDiscover_ExchangeType;
KZ_HOST_EXPORT extern const QString QRT_ExchangeDiscover_ExchangeTypeOnpremise;
KZ_HOST_EXPORT extern const QString QRT_ExchangeDiscover_O365LoginParams;
KZ_HOST_EXPORT extern const QString QRT_CredentialType;
KZ_HOST_EXPORT extern const QString QRT_CredentialTypeUsernamePassword;
KZ_HOST_EXPORT extern const QString QRT_CredentialTypeOAuthToken;
KZ_HOST_EXPORT extern const QString QRT_CredentialUsername;
KZ_HOST_EXPORT extern const QString QRT_CredentialContent;
KZ_HOST_EXPORT extern const QString QRT_ListingMeeting_exchOnlineToken;
