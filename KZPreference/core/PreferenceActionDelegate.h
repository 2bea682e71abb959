#pragma once

#include "KZPreference/contract/PluginCommandSender.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"

class ADAuthenticationWrapper;

// Carries out the actions of panes and authenticators: each is written to the store, sent to the host, or
// passed to the Meetings panes. Main thread only.
class PreferenceActionDelegate final : public PreferenceActionDelegateProtocol {
 public:
  explicit PreferenceActionDelegate(PluginCommandSender* preference);  // not owned

  void setADAuthWrapper(ADAuthenticationWrapper* wrapper);  // not owned

  void setPrefMeetingView(CalendarPreferenceReceiver* view) override;
  void setNonSignInPrefMeetingView(CalendarPreferenceReceiver* view) override;
  void checkingStartStateChanging(bool flag) override;
  void outlookIntegratingStateChange(bool flag) override;
  void applyOutlookAccount(const Dictionary& accountInfo) override;
  void cancelSignIn() override;
  void sinkOutlookAccountCredential(const Dictionary& credential) override;
  void cancelApplyOutlookAccount(const Dictionary& accountInfo) override;
  void notifyListExchMeetingAuthFailure() override;
  void setExchOnpremiseCredInvalid() override;
  void notifyExchDiscoverAuthFailure() override;
  void notifyExchOnlineTokenGot(const Dictionary& result) override;
  void setExchangeInfo(const Dictionary& info) override;
  void editMeetingNowSetting() override;
  void setCalendarDays(const QString& days) override;
  void setCalendarIntegrationSource(const QString& source) override;
  void calendarIntergrationSourceChanged() override;
  void setMeetingAlerts(bool state, const QString& minutes) override;
  void setSnooze(bool state, const QString& minutes) override;
  void setMeetingCard(bool state, const QString& minutes) override;
  void setVideoDevicePrefs(const Dictionary& prefs) override;
  void setDisplayName(const QString& name, const QString& email) override;
  void changeSite() override;

 private:
  PluginCommandSender* m_preference;
  ADAuthenticationWrapper* m_ADAuthWrapper = nullptr;
  CalendarPreferenceReceiver* m_prefMeetingView = nullptr;
  CalendarPreferenceReceiver* m_nonSignInPrefMeetingView = nullptr;
};
