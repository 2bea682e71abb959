#include "host/KZFoundation/KZCommands.h"

#include <algorithm>
#include <array>

namespace {

using enum KZCommand;
using enum KZDirection;
using enum KZNotify;

constexpr auto kCommands = std::to_array<KZCommandRow>({
    {KZCmdInitGuestPreference, "KZCmdInitGuestPreference", ToPlugin,
     "Replaces the window with the guest's, without showing it", "none"},
    {KZCmdShowPreference, "KZCmdShowPreference", ToPlugin, "Shows the Preferences window in front",
     "`kOpenPrefsViewType`: `kPrefsAccountView` opens the Account pane"},
    {KZCmdDestroyPreference, "KZCmdDestroyPreference", ToPlugin,
     "Closes the window and destroys its controller", "none"},
    {KZCmdUpdateGeneralSetting, "KZCmdUpdateGeneralSetting", ToHost, "A choice in the General pane changed",
     "`kLaunchAtLogin` or `kEnableOutlookKZPluginValue`: boolean"},
    {KZCmdCheckForUpdates, "KZCmdCheckForUpdates", ToPlugin, "The user asks for updates",
     "`TelemetryKey_ActionFrom`"},
    {KZCmdCheckForUpdates, "KZCmdCheckForUpdates", ToHost, "Check for updates, and show the outcome",
     "\"AppActionType\": \"CheckForUpdates\", `QRT_LoginResult_site`, `QRT_LoginResult_cdnUrl` (when known)"},
    {KZCmdCheckForUpdatesAutomatically, "KZCmdCheckForUpdatesAutomatically", ToPlugin,
     "The host's own timer asks for updates", "`TelemetryKey_ActionFrom`"},
    {KZCmdCheckForUpdatesAutomatically, "KZCmdCheckForUpdatesAutomatically", ToHost,
     "Check for updates quietly", "as command 8"},
    {KZCmdJoinByNumber, "KZCmdJoinByNumber", ToPlugin, "The user wants to join by number",
     "`TelemetryKey_ActionFrom`"},
    {KZCmdRequireLink, "KZCmdRequireLink", ToHost, "Open a page of the meeting service",
     "`QRT_Require_Link_Action_Type`: 1 meeting settings, 2 join by number"},
    {KZCmdPreferenceChanged, "KZCmdPreferenceChanged", ToHost,
     "The personal room's addresses, or the guest's name and email, changed in the store",
     "`QRT_Preference_PMRUrl`, `QRT_Preference_PMRSipUrl`, each when known; none for a guest"},
    {KZCmdChangeSite, "KZCmdChangeSite", ToHost, "The user wants another site", "none"},
    {KZCmdApplyOutlookAccount, "KZCmdApplyOutlookAccount", ToHost,
     "Find the Exchange service of an email address", "`QRT_ExchangeDiscover_Email`"},
    {KZCmdCancelApplyOutlookAccount, "KZCmdCancelApplyOutlookAccount", ToHost, "Cancel that search",
     "`QRT_ExchangeDiscover_Email`"},
    {KZCmdRequireChangeCalendarIntegration, "KZCmdRequireChangeCalendarIntegration", ToPlugin,
     "The host asks for another calendar source", "`kKZCalendarIntegrationSource`"},
    {KZCmdCalendarIntegrationSourceChanged, "KZCmdCalendarIntegrationSourceChanged", ToHost,
     "The calendar source in the store changed", "an empty dictionary"},
    {KZCmdSetVideoDevicePrefs, "KZCmdSetVideoDevicePrefs", ToHost, "The video device settings changed",
     "`kKZVideoDeviceAutodetect`: boolean, with the store's other keys"},
    {KZCmdProximity, "KZCmdProximity", ToPlugin, "Turns the discovery of nearby devices on",
     "`kproximityCommand`: the constant `kstartDetectVD` itself"},
    {KZCmdListExchMeetingAuthFailure, "KZCmdListExchMeetingAuthFailure", ToHost,
     "The saved Exchange credential was refused while meetings were listed", "an empty dictionary"},
    {KZCmdExchDiscoverAuthFailure, "KZCmdExchDiscoverAuthFailure", ToHost,
     "The typed Exchange credential was refused", "an empty dictionary"},
    {KZCmdWriteTelemetry, "KZCmdWriteTelemetry", ToHost, "One telemetry record",
     "`TelemetryKey_MetricName`, `TelemetryKey_Values`"},
    {KZCmdSinkOutlookAccountCredential, "KZCmdSinkOutlookAccountCredential", ToHost,
     "The credential of the account that is being applied",
     "`QRT_CredentialType`, `QRT_CredentialContent`; `QRT_CredentialUsername` with a token"},
    {KZCmdGetExchOnlineToken, "KZCmdGetExchOnlineToken", ToPlugin, "The host wants an Exchange Online token",
     "`kKZCalendarIntegration` / `kKZCalendarIntegrationExchange` / `kKZCalendarIntegrationExchangeEmail`, "
     "`kKZCalendarIntegrationExchangeUsername`"},
    {KZCmdExchOnlineTokenGot, "KZCmdExchOnlineTokenGot", ToHost, "The response to command 28",
     "the request with `QRT_ListingMeeting_exchOnlineToken` and \"isTokenExpired\", or with "
     "\"GetTokenFailed\" "
     "and \"GetTokenFailedReason\""},
});

constexpr auto kNotifications = std::to_array<KZNotifyRow>({
    {KZNotifyGetPreferenceDone, "KZNotifyGetPreferenceDone", "The user's preference record arrived",
     "`kKZResult`, \"kz\": the record, `kOpenPrefsViewType`"},
    {KZNotifyCheckForUpdatesDone, "KZNotifyCheckForUpdatesDone", "A check for updates ended",
     "`kKZResult`, `kKZErrorHandleData`"},
    {KZNotifyRefreshPreferenceDone, "KZNotifyRefreshPreferenceDone",
     "The personal room's addresses were read again", "`QRT_Preference_PMRUrl`, `QRT_Preference_PMRSipUrl`"},
    {KZNotifyResolveExchangeDone, "KZNotifyResolveExchangeDone", "The search of command 15 ended",
     "`kKZResult`, `QRT_ExchangeDiscover_Exchange`, `kKZErrorHandleData`"},
    {KZNotifyO365LoginRequesting, "KZNotifyO365LoginRequesting", "An Office 365 sign-in is needed",
     "\"O365LoginData\": JSON text with \"O365LoginParams\", JSON text again"},
    {KZNotifyExchangeResolvingNeedCredential, "KZNotifyExchangeResolvingNeedCredential",
     "The search of command 15 needs a credential",
     "`kKZResult`, `QRT_ExchangeDiscover_ExchangeType`, `QRT_ExchangeDiscover_O365LoginParams`"},
});

}  // namespace

std::span<const KZCommandRow> kzCommandTable() {
  return kCommands;
}
std::span<const KZNotifyRow> kzNotifyTable() {
  return kNotifications;
}

const char* kzCommandName(quint64 number) {
  const auto* row = std::ranges::find(
      kCommands, number, [](const KZCommandRow& entry) { return static_cast<quint64>(entry.number); });
  return row == kCommands.end() ? "" : row->name;
}
