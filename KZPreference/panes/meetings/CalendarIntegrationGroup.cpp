#include "KZPreference/panes/meetings/CalendarIntegrationGroup.h"

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "KZPreference/layout/PreferenceTelemetry.h"
#include "KZPreference/layout/Resources.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUIExtension/FlatImageButton.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/Accessible.h"
#include "platform/FrameLayout.h"
#include "platform/KeyView.h"
#include "platform/Spinner.h"
#include "platform/WindowController.h"

CalendarIntegrationGroup::CalendarIntegrationGroup(const Frame& frame,
                                                   PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {}

CalendarIntegrationGroup::~CalendarIntegrationGroup() {
  setOLAccountAuthenticator(nullptr);
}

void CalendarIntegrationGroup::setOLAccountAuthenticator(OLAccountAuthenticator* authenticator) {
  if (m_authenticator) m_authenticator->setAuthDelegate(nullptr);
  m_authenticator = authenticator;
  if (m_authenticator) m_authenticator->setAuthDelegate(this);
}

QString CalendarIntegrationGroup::username() const {
  return m_usernameInputTxt->text();
}
QString CalendarIntegrationGroup::password() const {
  return m_passwordInputTxt->text();
}

// Applied account

void CalendarIntegrationGroup::showAppliedState(bool isApplied) {
  if (!isApplied) {
    m_emailInputTxt->setText(QString());
    m_detectBtn->setEnabled(false);
    m_message.hideMessage();
    return;
  }
  loadEmailFromPreferences();
  m_detectBtn->setEnabled(true);
  hideCredentialControls();
  // Known for long, so not announced.
  constexpr auto quietly = CalendarIntegrationMessage::Announce::No;
  isOnpremiseCredValid() ? m_message.showSuccessMessage(quietly)
                         : m_message.showInvalidAccountMessage(quietly);
}

bool CalendarIntegrationGroup::isOnpremiseCredValid() const {
  return flagValue(m_assist.exchangePrefs(), kKZCalendarIntegrationOnpremiseCredValid).value_or(true);
}

void CalendarIntegrationGroup::loadEmailFromPreferences() {
  const QString email = textValue(m_assist.exchangePrefs(), kKZCalendarIntegrationExchangeEmail);
  if (email.isNull()) return;
  m_emailInputTxt->setText(email);
  // An address longer than the field shows its beginning.
  m_emailInputTxt->setCursorPosition(0);
}

// Choosing a source

void CalendarIntegrationGroup::enableOutlook() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  m_outlookRadioBtn->setChecked(true);
  enableCredentialFields();
  updateByAppliedState();
}

void CalendarIntegrationGroup::enableCredentialFields() {
  m_emailInputTxt->setEnabled(true);
  m_passwordInputTxt->setEnabled(true);
}

// The user name field is deliberately left as it is.
void CalendarIntegrationGroup::disableCredentialControls() {
  m_emailInputTxt->setEnabled(false);
  m_passwordInputTxt->setEnabled(false);
  m_applyBtn->setEnabled(false);
  m_detectBtn->setEnabled(false);
}

void CalendarIntegrationGroup::onOutlookButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  enableOutlook();
  reportSource(kKZCalendarIntegrationSourceOutlook, TelemetryValue_FeatureName_Click_CalendarSourceOutlook);
}

void CalendarIntegrationGroup::reportSource(const QString& source, const QString& featureName) {
  m_message.hideMessage();
  m_actionDelegate->setCalendarIntegrationSource(source);
  PreferenceTelemetry::sharedInstance().writeFeatrueName(featureName);
}

// Detecting the service

void CalendarIntegrationGroup::onDetectButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  detectExchangeService();
}

void CalendarIntegrationGroup::onEmailAddressEnter() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  detectExchangeService();
}

void CalendarIntegrationGroup::detectExchangeService() {
  const QString email = m_emailInputTxt->text();
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "email:%@", email);
  if (!m_assist.isValidEmailAddress(email)) return m_message.showInvalidEmailMessage();

  m_message.hideMessage();
  startDetectingSpinner();
  m_isApplying = true;
  m_actionDelegate->applyOutlookAccount({{QRT_ExchangeDiscover_Email, email}});
  PreferenceTelemetry::sharedInstance().writeFeatrueName(
      TelemetryValue_FeatureName_Click_ApplyExchangeAccount);
}

// Credential

void CalendarIntegrationGroup::needOutlookCredential(const Dictionary& result) {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "result:%@", result);
  stopSpinner();
  m_usernameInputTxt->setText(QString());
  m_passwordInputTxt->setText(QString());
  m_usernameInputTxt->show();
  m_passwordInputTxt->show();
  m_messageTxt->lower();  // an earlier result would cover the user name field
  // After showing it: a hidden field cannot take the focus.
  makeFirstResponder(m_usernameInputTxt);
  m_passwordInputTxt->setEnabled(false);
  m_applyBtn->show();
  m_applyBtn->setEnabled(false);
}

void CalendarIntegrationGroup::onPasswordTxtEnter() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  sinkCredential();
}
void CalendarIntegrationGroup::onApplyButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  sinkCredential();
}

void CalendarIntegrationGroup::sinkCredential() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  if (username().isEmpty()) {
    MVRNSErrorFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "username empty");
    return;
  }
  if (password().isEmpty()) {
    MVRNSErrorFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "password empty");
    return;
  }
  startApplyingSpinner();
  m_actionDelegate->sinkOutlookAccountCredential(
      {{QRT_CredentialType, QRT_CredentialTypeUsernamePassword},
       {QRT_CredentialContent, username() + QLatin1Char(':') + password()}});
}

// Result

void CalendarIntegrationGroup::onExchangeResolveDone(const Dictionary& result) {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "result:%@", result);
  const bool isDone = isEqualText(textValue(result, kKZResult), kKZSuccess);
  m_isApplying = false;
  stopSpinner();
  if (isDone) {
    handleExchangeResolveSuccess(result);
    m_message.showSuccessMessage();
  } else {
    m_message.showErrorMessage(result);
  }
  hideCredentialControls();
  WindowController* controller = WindowController::of(this);
  if (isDone && m_isOpeningByDashboard && controller) controller->close();
}

void CalendarIntegrationGroup::handleExchangeResolveSuccess(const Dictionary& result) {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  Dictionary exchange = dictionaryValue(result, QRT_ExchangeDiscover_Exchange);
  if (textValue(exchange, QRT_ExchangeDiscover_Username).isEmpty()) {
    exchange.insert(QRT_ExchangeDiscover_Username, username());
  }
  m_actionDelegate->setExchangeInfo(exchange);
  KZKeyChainHandle::sharedInstance().commitOutlookUsername(textValue(exchange, QRT_ExchangeDiscover_Username),
                                                           password());
  m_actionDelegate->setCalendarIntegrationSource(kKZCalendarIntegrationSourceOutlook);
}

void CalendarIntegrationGroup::onAuthFailure(const Dictionary& result) {
  MVRNSErrorFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "result:%@", result);
  m_isApplying = false;
  hideCredentialControls();
  stopSpinner();
  m_message.showInvalidAccountMessage();
}

void CalendarIntegrationGroup::cancelRuningApply() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "m_isApplying:%d", m_isApplying);
  if (!m_isApplying) return;
  m_isApplying = false;
  m_actionDelegate->cancelApplyOutlookAccount({{QRT_ExchangeDiscover_Email, m_emailInputTxt->text()}});
}

// Window

void CalendarIntegrationGroup::windowDidBecomeKey() {}

void CalendarIntegrationGroup::onWindowWillClose() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  const bool isApplied = m_assist.isOLAccountApplied();
  reportSourceOnClose(isApplied);
  showAppliedState(isApplied);
  cancelRuningApply();
}

// Typing

void CalendarIntegrationGroup::controlTextDidChange() {
  m_message.hideMessage();
  checkBtnsEnabled();
}

void CalendarIntegrationGroup::checkBtnsEnabled() {
  const bool isValid = m_assist.isValidEmailAddress(m_emailInputTxt->text());
  m_detectBtn->setEnabled(isValid);
  if (isValid) m_passwordInputTxt->setEnabled(!username().isEmpty());
  m_applyBtn->setEnabled(isValid && !password().isEmpty());
}

void CalendarIntegrationGroup::hideCredentialControls() {
  const QWidget* focused = window()->focusWidget();
  // Otherwise the focus would move to whatever comes next.
  if (focused == m_usernameInputTxt || focused == m_passwordInputTxt || focused == m_applyBtn)
    m_emailInputTxt->setFocus(Qt::OtherFocusReason);
  m_usernameInputTxt->hide();
  m_passwordInputTxt->hide();
  m_applyBtn->hide();
}

// Spinner

void CalendarIntegrationGroup::startDetectingSpinner() {
  startSpinnerBeside(m_emailInputTxt, 10, localizedString("Looking up the account…"));
}
void CalendarIntegrationGroup::startApplyingSpinner() {
  startSpinnerBeside(m_applyBtn, 2, localizedString("Applying…"));
}

void CalendarIntegrationGroup::startSpinnerBeside(const QWidget* control, double gap, const QString& spoken) {
  const Frame beside = frameOf(control);
  Frame spinner = frameOf(m_spinner);
  spinner.x = beside.maxX() + gap;
  spinner.y = beside.y + (beside.height - spinner.height) / 2;
  setFrame(m_spinner, spinner);
  m_spinner->show();
  m_spinner->startAnimation();
  m_spinner->setAccessibleName(spoken);
  announce(m_spinner, spoken);
}

void CalendarIntegrationGroup::stopSpinner() {
  m_spinner->hide();
  m_spinner->stopAnimation();
}
