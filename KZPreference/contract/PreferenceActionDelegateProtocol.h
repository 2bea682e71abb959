#pragma once

#include "host/KZFoundation/Dictionary.h"

// A view that shows the calendar settings. Main thread only.
class CalendarPreferenceReceiver {
 public:
  virtual ~CalendarPreferenceReceiver() = default;

  virtual void setCalendarPreference(const Dictionary& preference) = 0;
};

// The actions that panes and authenticators report to the core. Values are stored and sent without a check.
// Main thread only.
class PreferenceActionDelegateProtocol {
 public:
  virtual ~PreferenceActionDelegateProtocol() = default;

  // The Meetings pane of each window variant. Not owned; set nullptr before it is destroyed.
  virtual void setPrefMeetingView(CalendarPreferenceReceiver* view) = 0;
  virtual void setNonSignInPrefMeetingView(CalendarPreferenceReceiver* view) = 0;

  // General pane.
  virtual void checkingStartStateChanging(bool flag) = 0;
  virtual void outlookIntegratingStateChange(bool flag) = 0;

  // Exchange and Office 365.
  virtual void applyOutlookAccount(const Dictionary& accountInfo) = 0;
  virtual void cancelSignIn() = 0;  // ends one that waits for the user, without a result
  virtual void sinkOutlookAccountCredential(const Dictionary& credential) = 0;
  virtual void cancelApplyOutlookAccount(const Dictionary& accountInfo) = 0;
  virtual void notifyListExchMeetingAuthFailure() = 0;
  virtual void setExchOnpremiseCredInvalid() = 0;
  virtual void notifyExchDiscoverAuthFailure() = 0;
  virtual void notifyExchOnlineTokenGot(const Dictionary& result) = 0;
  virtual void setExchangeInfo(const Dictionary& info) = 0;

  // Meetings pane.
  virtual void editMeetingNowSetting() = 0;
  virtual void setCalendarDays(const QString& days) = 0;
  virtual void setCalendarIntegrationSource(const QString& source) = 0;
  virtual void calendarIntergrationSourceChanged() = 0;

  // Notifications pane.
  virtual void setMeetingAlerts(bool state, const QString& minutes) = 0;
  virtual void setSnooze(bool state, const QString& minutes) = 0;
  virtual void setMeetingCard(bool state, const QString& minutes) = 0;

  // Video devices pane.
  virtual void setVideoDevicePrefs(const Dictionary& prefs) = 0;

  // Account pane.
  virtual void setDisplayName(const QString& name, const QString& email) = 0;
  virtual void changeSite() = 0;
};
