#pragma once

#include "KZPreference/contract/ExchangeResolveResultReceiving.h"
#include "KZPreference/contract/KZCalendarIntegrationOption.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "KZPreference/windows/LWPrefsWindowController.h"

class MeetingsPane;
class OLAccountAuthenticator;
class PrefNotificationView;
class PrefProximityView;

// The window with the five panes. A variant says which General, Account and Meetings panes they are. Results
// from the host go to the Meetings pane; before the first showing there are no panes, and they are dropped.
// Main thread only.
class PreferenceWindowController : public LWPrefsWindowController, public ExchangeResolveResultReceiving {
  Q_OBJECT

 public:
  // Not owned; the Meetings pane's calendar group is its auth delegate once it exists.
  void setOLAccountAuthenticator(OLAccountAuthenticator* authenticator);

  void requireToChangeCalendarIntegration(const Dictionary& requireInfo);
  void onExchangeResolvingNeedCredential(const Dictionary& result);
  void onExchangeResolveDone(const Dictionary& result) override;
  void gotoAccountView();
  void requireEnableProximityAutoDetect();
  // Ends every tie to others, so that the controller may be destroyed later.
  void retire();
  // Do nothing in a variant that has nothing to do.
  virtual void refreshPreference();
  virtual void setCalendarIntergrationOption(const KZCalendarIntegrationOption& option);

 protected:
  struct PaneSizes {
    Size general;
    Size account;
    Size meetings;
  };

  explicit PreferenceWindowController(PreferenceActionDelegateProtocol* delegate);  // not owned

  virtual PaneSizes paneSizes() const = 0;
  virtual View* createGeneralView(const Frame& frame) = 0;
  virtual View* createAccountView(const Frame& frame) = 0;
  // The pane with everything that only this variant gives it.
  virtual MeetingsPane* createMeetingView(const Frame& frame) = 0;
  virtual void registerMeetingView(MeetingsPane* view) = 0;  // nullptr: forget it
  // The host asks for a calendar source that is not Outlook.
  virtual void requireOtherCalendarSource();

  void setupToolbar() override;
  void windowDidBecomeKey() override;
  void windowWillClose() override;

  PreferenceActionDelegateProtocol* m_prefsDelegate;

 private:
  void setDefaultPreference();
  void setNotificationDefaultPreference();
  void setVideoDeviceDefaultPreference();
  void createPreferenceViews();

  bool m_isRetired = false;
  OLAccountAuthenticator* m_olaccountAuthenticator = nullptr;
  View* m_generalView = nullptr;
  View* m_accountView = nullptr;
  MeetingsPane* m_meetingView = nullptr;
  PrefNotificationView* m_notificationView = nullptr;
  PrefProximityView* m_proximityView = nullptr;
};
