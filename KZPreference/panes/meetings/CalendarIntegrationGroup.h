#pragma once

#include "KZPreference/authentication/OLAccountAuthenticator.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "KZPreference/panes/meetings/CalendarIntegrationAssist.h"
#include "KZPreference/panes/meetings/CalendarIntegrationMessage.h"
#include "platform/View.h"

class FlatImageButton;
class QLineEdit;
class QPushButton;
class QRadioButton;
class Spinner;

// The part that both calendar integration groups share: applying an Exchange account (detect, credential,
// result, rejection, cancel), with the controls, the rules that enable them, and the status line. A variant
// adds its calendar sources. Main thread only.
class CalendarIntegrationGroup : public View, public OutlookAccountAuthDelegate {
  Q_OBJECT

 public:
  // From one calendar source to the next, in points.
  static constexpr double sourceRowPitch = 26;

  ~CalendarIntegrationGroup() override;

  // Not owned. The group is its auth delegate until it is destroyed or gets another authenticator, or
  // nullptr.
  void setOLAccountAuthenticator(OLAccountAuthenticator* authenticator);

  virtual void setCalendarPreference(const Dictionary& preference) = 0;
  // From now until the window closes, a successful result closes it.
  void setOpeningByDashboard() { m_isOpeningByDashboard = true; }

  virtual void windowDidBecomeKey();
  void onWindowWillClose();

  void needOutlookCredential(const Dictionary& result);
  void onExchangeResolveDone(const Dictionary& result);

  QString username() const override;
  QString password() const override;
  void onAuthFailure(const Dictionary& result) override;

 protected:
  CalendarIntegrationGroup(const Frame& frame,
                           PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  // Creates the controls; for the constructor of a variant.
  void initControls();
  virtual void initRadioButtons() = 0;
  QRadioButton* addRadioButton(const char* name, int row, const QString& title);
  double sourceRowY(int row) const;
  // Call after the group's height changed.
  void relayoutAfterResize();

  // Shows whether an account is applied, for which it reads the keychain.
  void updateByAppliedState() { showAppliedState(m_assist.isOLAccountApplied()); }
  virtual void showAppliedState(bool isApplied);
  virtual void enableOutlook();
  void enableCredentialFields();
  void disableCredentialControls();
  void onOutlookButton();
  // The user chose this source.
  void reportSource(const QString& source, const QString& featureName);

  // Called when the window closes, to report a changed source.
  virtual void reportSourceOnClose(bool isApplied) = 0;

  CalendarIntegrationAssist m_assist;
  CalendarIntegrationMessage m_message;
  PreferenceActionDelegateProtocol* m_actionDelegate;
  bool m_isOpeningByDashboard = false;
  QRadioButton* m_outlookRadioBtn = nullptr;
  QLineEdit* m_emailInputTxt = nullptr;

 private:
  void initIntegratinLabel();
  void initInputTextFields();
  void initDetectButton();
  void initApplyButton();
  void initSpinner();
  void initErrorText();
  void placeCredentialControls();

  void onDetectButton();
  void onEmailAddressEnter();
  void onPasswordTxtEnter();
  void onApplyButton();
  void controlTextDidChange();
  void detectExchangeService();
  void sinkCredential();
  void handleExchangeResolveSuccess(const Dictionary& result);
  void cancelRuningApply();
  void checkBtnsEnabled();
  void hideCredentialControls();
  bool isOnpremiseCredValid() const;
  void loadEmailFromPreferences();
  void startDetectingSpinner();
  void startApplyingSpinner();
  void startSpinnerBeside(const QWidget* control, double gap, const QString& spoken);
  void stopSpinner();

  OLAccountAuthenticator* m_authenticator = nullptr;
  bool m_isApplying = false;
  StaticText* m_integrationTxt = nullptr;
  QLineEdit* m_usernameInputTxt = nullptr;
  QLineEdit* m_passwordInputTxt = nullptr;
  FlatImageButton* m_detectBtn = nullptr;
  QPushButton* m_applyBtn = nullptr;
  Spinner* m_spinner = nullptr;
  StaticText* m_messageTxt = nullptr;
};
