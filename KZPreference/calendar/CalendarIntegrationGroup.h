#pragma once

#include "KZPreference/calendar/CalendarIntegrationAssist.h"
#include "KZPreference/calendar/CalendarIntegrationMessage.h"
#include "KZPreference/contract/OutlookAccountAuthDelegate.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class FlatImageButton;
class OLAccountAuthenticator;
class QLineEdit;
class QPushButton;
class QRadioButton;
class Spinner;

// What both calendar integration groups share: applying an Exchange account (detect, credential, result,
// rejection, cancel) with its controls, enabling rules and status line. A variant adds its sources. Main
// thread only.
class CalendarIntegrationGroup : public View, public OutlookAccountAuthDelegate {
  Q_OBJECT

 public:
  ~CalendarIntegrationGroup() override;

  // Not owned; the group is its auth delegate from now on, until it goes or is given another or none.
  void setOLAccountAuthenticator(OLAccountAuthenticator* authenticator);

  virtual void setCalendarPreference(const Dictionary& preference) = 0;
  // A successful result closes the window from now on, until the window closes.
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

  // The controls, in order; a variant's constructor calls it once its sources can be made.
  void initControls();
  virtual void initRadioButtons() = 0;
  QRadioButton* addRadioButton(const QString& name, int row, const QString& title);
  // Puts heading and credential controls where the group's height says.
  void relayoutCredentialControls();

  virtual void updateByAppliedState();
  virtual void enableOutlook();
  void enableCredentialFields();
  void disableCredentialControls();
  void onOutlookButton();
  // The user chose this source.
  void reportSource(const QString& source, const QString& featureName);

  // What has to be told about the source when the window closes.
  virtual void reportSourceOnClose() = 0;

  CalendarIntegrationAssist m_assist;
  CalendarIntegrationMessage m_message;
  PreferenceActionDelegateProtocol* m_actionDelegate;
  bool m_isOpeningByDashboard = false;
  QRadioButton* m_outlookRadioBtn = nullptr;
  QLineEdit* m_emailInputTxt = nullptr;

 private:
  void initIntegratinLabel();
  void alignHeading();
  void initInputTextFields();
  void initDetectButton();
  void initApplyButton();
  void initSpinner();
  void initErrorText();
  Frame emailFrame() const;
  Frame detectFrame() const;
  Frame applyFrame() const;
  Frame messageFrame() const;

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
  void startSpinnerBeside(const QWidget* control, double gap);
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
