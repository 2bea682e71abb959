#pragma once

#include "KZPreference/authentication/ADAuthenticationWrapper.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "KZPreference/windows/LWPrefsWindowController.h"

class MeetingsPane;
class OLAccountAuthenticator;
class PrefNotificationView;
class PrefProximityView;
struct KZCalendarIntegrationOption;

// The window with the five panes. A variant creates its own General, Account and Meetings panes. Results from
// the host go to the Meetings pane; they are dropped until the window is first shown, which creates the
// panes. Main thread only.
class PreferenceWindowController : public LWPrefsWindowController, public ExchangeResolveResultReceiving {
  Q_OBJECT

 public:
  // Not owned. Its auth delegate is the Meetings pane's calendar group, once that exists.
  void setOLAccountAuthenticator(OLAccountAuthenticator* authenticator);

  void requireToChangeCalendarIntegration(const Dictionary& requireInfo);
  void onExchangeResolvingNeedCredential(const Dictionary& result);
  void onExchangeResolveDone(const Dictionary& result) override;
  void gotoAccountView();
  void requireEnableProximityAutoDetect();
  // Detaches the controller from the delegate and the authenticator; it is destroyed later.
  void retire();
  // These do nothing unless a variant overrides them.
  virtual void refreshPreference();
  virtual void setCalendarIntergrationOption(const KZCalendarIntegrationOption& option);

 protected:
  struct PaneSizes {
    Size general;
    Size account;
    Size meetings;
  };

  explicit PreferenceWindowController(PreferenceActionDelegateProtocol* delegate);  // not owned
  // For the constructor of a variant, whose class the trace then names.
  void initWithPreferenceActionDelegate();

  virtual PaneSizes paneSizes() const = 0;
  virtual View* createGeneralView(const Frame& frame) = 0;
  virtual View* createAccountView(const Frame& frame) = 0;
  // With all its settings.
  virtual MeetingsPane* createMeetingView(const Frame& frame) = 0;
  virtual void registerMeetingView(MeetingsPane* view) = 0;  // nullptr to unregister
  // The host asks for a calendar source that is not Outlook.
  virtual void requireOtherCalendarSource();

  void setupToolbar() override;
  void windowDidBecomeKey() override;
  void windowWillClose() override;

  PreferenceActionDelegateProtocol* m_prefsDelegate;
  OLAccountAuthenticator* m_olaccountAuthenticator = nullptr;

 private:
  void initWithWindow();
  void checkOutlookInstalled();
  void setDefaultPreference();
  void setNotificationDefaultPreference();
  void setVideoDeviceDefaultPreference();
  void createPreferenceViews();

  bool m_isRetired = false;
  View* m_generalView = nullptr;
  View* m_accountView = nullptr;
  MeetingsPane* m_meetingView = nullptr;
  PrefNotificationView* m_notificationView = nullptr;
  PrefProximityView* m_proximityView = nullptr;
};
