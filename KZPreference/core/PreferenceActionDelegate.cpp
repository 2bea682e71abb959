#include "KZPreference/core/PreferenceActionDelegate.h"

#include "KZPreference/authentication/ADAuthenticationWrapper.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"

namespace {

using enum KZCommand;

constexpr int kRequireMeetingSettings = 1;

KZPlistFileHandle& settings() {
  return KZPlistFileHandle::sharedInstance();
}

void storeCalendarValue(const QString& key, const QVariant& value) {
  Dictionary calendar = settings().calendarIntegration().value_or(Dictionary());
  calendar.insert(key, value);
  settings().setCalendarIntegration(calendar);
}

struct NotificationKeys {
  QString state;
  QString minutes;
};

void storeNotification(const NotificationKeys& keys, bool state, const QString& minutes) {
  Dictionary notification = settings().meetingNotification().value_or(Dictionary());
  notification.insert(keys.state, state);
  notification.insert(keys.minutes, minutes);
  settings().setMeetingNotification(notification);
}

}  // namespace

PreferenceActionDelegate::PreferenceActionDelegate(PluginCommandSender* preference)
    : m_preference(preference) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "delegate:%@", preference);
}

void PreferenceActionDelegate::setADAuthWrapper(ADAuthenticationWrapper* wrapper) {
  m_ADAuthWrapper = wrapper;
}

void PreferenceActionDelegate::setPrefMeetingView(CalendarPreferenceReceiver* view) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefMeetingView:%@", view);
  m_prefMeetingView = view;
}

void PreferenceActionDelegate::setNonSignInPrefMeetingView(CalendarPreferenceReceiver* view) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefMeetingView:%@", view);
  m_nonSignInPrefMeetingView = view;
}

void PreferenceActionDelegate::checkingStartStateChanging(bool flag) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "flag:%d", flag);
  m_preference->sendPluginCommand(KZCmdUpdateGeneralSetting, Dictionary{{kLaunchAtLogin, flag}});
}

void PreferenceActionDelegate::outlookIntegratingStateChange(bool flag) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "flag:%d", flag);
  m_preference->sendPluginCommand(KZCmdUpdateGeneralSetting, Dictionary{{kEnableOutlookKZPluginValue, flag}});
}

void PreferenceActionDelegate::applyOutlookAccount(const Dictionary& accountInfo) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "accountInfo:%@", accountInfo);
  // Before the command, in response to which the host may start the next sign-in.
  cancelSignIn();
  m_preference->sendPluginCommand(KZCmdApplyOutlookAccount, accountInfo);
}

void PreferenceActionDelegate::cancelSignIn() {
  if (m_ADAuthWrapper) m_ADAuthWrapper->cancelSignIn();
}

void PreferenceActionDelegate::sinkOutlookAccountCredential(const Dictionary& credential) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_preference->sendPluginCommand(KZCmdSinkOutlookAccountCredential, credential);
}

void PreferenceActionDelegate::cancelApplyOutlookAccount(const Dictionary& accountInfo) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "accountInfo:%@", accountInfo);
  m_preference->sendPluginCommand(KZCmdCancelApplyOutlookAccount, accountInfo);
}

void PreferenceActionDelegate::notifyListExchMeetingAuthFailure() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  // Before the command: the host reads the store when it gets it.
  setExchOnpremiseCredInvalid();
  m_preference->sendPluginCommand(KZCmdListExchMeetingAuthFailure, Dictionary());
}

void PreferenceActionDelegate::setExchOnpremiseCredInvalid() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  Dictionary exchange = dictionaryValue(settings().calendarIntegration().value_or(Dictionary()),
                                        kKZCalendarIntegrationExchange);
  exchange.insert(kKZCalendarIntegrationOnpremiseCredValid, false);
  storeCalendarValue(kKZCalendarIntegrationExchange, exchange);
}

void PreferenceActionDelegate::notifyExchDiscoverAuthFailure() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_preference->sendPluginCommand(KZCmdExchDiscoverAuthFailure, Dictionary());
}

void PreferenceActionDelegate::notifyExchOnlineTokenGot(const Dictionary& result) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_preference->sendPluginCommand(KZCmdExchOnlineTokenGot, result);
}

void PreferenceActionDelegate::setExchangeInfo(const Dictionary& info) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "exchinfo:%@", info);
  storeCalendarValue(kKZCalendarIntegrationExchange, info);
}

void PreferenceActionDelegate::editMeetingNowSetting() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_preference->sendPluginCommand(KZCmdRequireLink,
                                  Dictionary{{QRT_Require_Link_Action_Type, kRequireMeetingSettings}});
}

void PreferenceActionDelegate::setCalendarDays(const QString& days) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "days:%@", days);
  storeCalendarValue(kKZCalendarIntegrationDays, days);
}

void PreferenceActionDelegate::setCalendarIntegrationSource(const QString& source) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "source:%@", source);
  Dictionary calendar = settings().calendarIntegration().value_or(Dictionary());
  const bool hasDays = calendar.contains(kKZCalendarIntegrationDays);
  calendar.insert(kKZCalendarIntegrationSource, source);
  if (!hasDays) calendar.insert(kKZCalendarIntegrationDays, kKZCalendarIntegrationDaysDefault);
  // The panes are updated before the store.
  if (m_prefMeetingView) m_prefMeetingView->setCalendarPreference(calendar);
  if (m_nonSignInPrefMeetingView) m_nonSignInPrefMeetingView->setCalendarPreference(calendar);
  settings().setCalendarIntegration(calendar);
}

void PreferenceActionDelegate::calendarIntergrationSourceChanged() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_preference->sendPluginCommand(KZCmdCalendarIntegrationSourceChanged, Dictionary());
}

void PreferenceActionDelegate::setMeetingAlerts(bool state, const QString& minutes) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "state:%d, minutes:%@", state, minutes);
  storeNotification({kKZMeetintNotificationToast, kKZMeetintNotificationToastMinutes}, state, minutes);
}

void PreferenceActionDelegate::setSnooze(bool state, const QString& minutes) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "state:%d, minutes:%@", state, minutes);
  storeNotification({kKZMeetintNotificationSnooze, kKZMeetintNotificationSnoozeMinutes}, state, minutes);
}

void PreferenceActionDelegate::setMeetingCard(bool state, const QString& minutes) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "state:%d, minutes:%@", state, minutes);
  storeNotification({kKZMeetintNotificationCard, kKZMeetintNotificationCardMinutes}, state, minutes);
}

void PreferenceActionDelegate::setVideoDevicePrefs(const Dictionary& prefs) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "prefs:%@", prefs);
  settings().setVideoDevice(prefs);
  m_preference->sendPluginCommand(KZCmdSetVideoDevicePrefs, prefs);
}

void PreferenceActionDelegate::setDisplayName(const QString& name, const QString& email) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "displayName:%@, email:%@", name, email);
  if (isEqualText(settings().displayName(), name) && isEqualText(settings().userName(), email)) return;
  settings().setUserName(email);
  settings().setDisplayName(name);
  m_preference->sendPluginCommand(KZCmdPreferenceChanged, std::nullopt);
}

void PreferenceActionDelegate::changeSite() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_preference->sendPluginCommand(KZCmdChangeSite, std::nullopt);
}
