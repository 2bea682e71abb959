#include "KZPreference/panes/account/NonSignInPrefAccountView.h"

#include <QKeyEvent>
#include <cmath>

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PreferenceTelemetry.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "KZPreference/layout/Resources.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZUtility.h"
#include "platform/Accessible.h"
#include "platform/FrameLayout.h"
#include "platform/KeyView.h"

namespace {

constexpr double kGuestNameRow = marginAtBottomEdge + 40;
constexpr double kGuestEmailRow = marginAtBottomEdge + 10;
constexpr double kGuestRowHeight = 22;

}  // namespace

NonSignInPrefAccountView::NonSignInPrefAccountView(const Frame& frame,
                                                   PreferenceActionDelegateProtocol* actionDelegate)
    : View(frame), m_actionDelegate(actionDelegate) {
  initLabels();
  initTxts();
  initInputTextFields();
  initErrorText();
  initEditButton();
  drawnTextsChanged();
}

QLineEdit* NonSignInPrefAccountView::createInputTextFieldWithRect(const char* name, const Frame& frame,
                                                                  const QString& text) {
  QLineEdit* field = addTextField(this, name, frame);
  field->setProperty("focusRing", false);
  field->setText(text);
  field->hide();
  connect(field, &QLineEdit::returnPressed, this, &NonSignInPrefAccountView::onInputTxtEnter);
  return field;
}

QList<DrawnText> NonSignInPrefAccountView::drawnTexts() const {
  return {drawAccountLabel()};
}

DrawnText NonSignInPrefAccountView::drawAccountLabel() const {
  const Size size = accountLabelSize();
  return {.text = accountLabel(),
          .frame = {marginAtLeftEdge, frameOf(this).height - size.height - marginAtTopEdge, size.width,
                    size.height},
          .role = FontRole::BoldSystem,
          .size = boldLabelFontSize};
}

void NonSignInPrefAccountView::initLabels() {
  const double width = labelWidth();
  addLabel(this, "m_nameLabel", {secondMarginAtLeftEdge, kGuestNameRow, width, kGuestRowHeight},
           fullNameLabel(), Qt::AlignRight);
  addLabel(this, "m_emailLabel", {secondMarginAtLeftEdge, kGuestEmailRow, width, kGuestRowHeight},
           emailAddressLabel(), Qt::AlignRight);
}

void NonSignInPrefAccountView::initTxts() {
  const double x = secondMarginAtLeftEdge + labelWidth() + marginBetweenLabelAndContent;
  m_nameTxt = addLabel(this, "m_nameTxt", {x, kGuestNameRow, fieldWidth, kGuestRowHeight}, QString());
  m_emailTxt = addLabel(this, "m_emailTxt", {x, kGuestEmailRow, fieldWidth, kGuestRowHeight}, QString());
  setAccessibleLabel(m_nameTxt, findChild<StaticText*>(QStringLiteral("m_nameLabel")));
  setAccessibleLabel(m_emailTxt, findChild<StaticText*>(QStringLiteral("m_emailLabel")));
  refreshDisplayModeTxt();
}

void NonSignInPrefAccountView::initInputTextFields() {
  const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
  const double x = std::floor(labelWidth()) + secondMarginAtLeftEdge + marginBetweenLabelAndContent;
  m_nameInputTxt = createInputTextFieldWithRect(
      "m_nameInputTxt", {x, kGuestNameRow, fieldWidth, kGuestRowHeight}, profile.displayName());
  m_emailInputTxt = createInputTextFieldWithRect(
      "m_emailInputTxt", {x, kGuestEmailRow, fieldWidth, kGuestRowHeight}, profile.userName());
  m_nameInputTxt->setAccessibleName(fullNameLabel());
  m_emailInputTxt->setAccessibleName(emailAddressLabel());
  const QString keys = localizedString("Return saves, Escape cancels, Ctrl+Tab leaves the fields.");
  m_nameInputTxt->setAccessibleDescription(keys);
  m_emailInputTxt->setAccessibleDescription(keys);
  connect(m_emailInputTxt, &QLineEdit::textEdited, this, &NonSignInPrefAccountView::controlTextDidChange);
  setNextKeyView(m_nameInputTxt, m_emailInputTxt);
  setNextKeyView(m_emailInputTxt, m_nameInputTxt);
}

void NonSignInPrefAccountView::initErrorText() {
  const Frame field = frameOf(m_emailInputTxt);
  m_warningMsg = addLabel(this, "m_warningMsg", {field.x, field.y - 20 - 5, frameOf(this).width, 20},
                          localizedString("Invalid email address"));
  m_warningMsg->setSystemColor(SystemColor::Red);
  m_warningMsg->hide();
}

void NonSignInPrefAccountView::initEditButton() {
  const Size title = accountLabelSize();
  const double y = frameOf(this).height - marginAtTopEdge - title.height * 0.5 - 8;
  m_editBtn = addLink(this, "m_editBtn",
                      {marginAtLeftEdge + title.width + marginBetweenContentAndButton, y,
                       buttonWidthWithTitle(editButtonLabel()), commonLabelHeight},
                      editButtonLabel());
  connect(m_editBtn, &BRNHyperlinkTextField::clicked, this, &NonSignInPrefAccountView::onEditButton);
}

void NonSignInPrefAccountView::refreshAccountInfo() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_bIsEditing = false;
  changeEditStatus();
}

void NonSignInPrefAccountView::viewDidUnhide() {
  refreshAccountInfo();
}

void NonSignInPrefAccountView::onEditButton() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  if (m_bIsEditing) {
    if (checkName(m_nameInputTxt->text(), m_emailInputTxt->text())) refreshAccountInfo();
    return;
  }
  PreferenceTelemetry::sharedInstance().writeFeatrueName(TelemetryValue_FeatureName_Click_EditGuestInfo,
                                                         TelemetryKey_ClickFrom,
                                                         TelemetryValue_ClickFrom_Preferences);
  m_bIsEditing = true;
  changeEditStatus();
  m_nameInputTxt->setFocus(Qt::TabFocusReason);
}

void NonSignInPrefAccountView::onInputTxtEnter() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  if (m_bIsEditing) onEditButton();
}

void NonSignInPrefAccountView::controlTextDidChange() {
  m_warningMsg->hide();
}

void NonSignInPrefAccountView::keyPressEvent(QKeyEvent* event) {
  if (!m_bIsEditing || event->key() != Qt::Key_Escape) return View::keyPressEvent(event);
  refreshAccountInfo();
}

void NonSignInPrefAccountView::changeEditStatus() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "m_bIsEditing:%d", m_bIsEditing);
  const QWidget* focused = window()->focusWidget();
  // Otherwise the focus would move to whatever comes next.
  if (focused == m_nameInputTxt || focused == m_emailInputTxt) m_editBtn->setFocus(Qt::OtherFocusReason);
  for (QWidget* field : {static_cast<QWidget*>(m_nameTxt), static_cast<QWidget*>(m_emailTxt),
                         static_cast<QWidget*>(m_nameInputTxt), static_cast<QWidget*>(m_emailInputTxt)}) {
    field->hide();
  }
  const QString title = m_bIsEditing ? applyButtonLabel() : editButtonLabel();
  m_editBtn->setStringValue(title);
  Frame link = frameOf(m_editBtn);
  link.width = buttonWidthWithTitle(title);
  setFrame(m_editBtn, link);
  m_bIsEditing ? refreshEditModeTxt() : refreshDisplayModeTxt();
}

void NonSignInPrefAccountView::refreshDisplayModeTxt() {
  const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
  m_nameTxt->setText(profile.displayName());
  m_emailTxt->setText(profile.userName());
  m_nameTxt->show();
  m_emailTxt->show();
}

void NonSignInPrefAccountView::refreshEditModeTxt() {
  const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
  m_nameInputTxt->setText(profile.displayName());
  m_emailInputTxt->setText(profile.userName());
  m_nameInputTxt->show();
  m_emailInputTxt->show();
}

bool NonSignInPrefAccountView::checkName(const QString& name, const QString& email) {
  const KZPlistFileHandle& profile = KZPlistFileHandle::sharedInstance();
  const QString checkedName = name.isEmpty() ? profile.displayName() : name;
  const QString checkedEmail =
      KZUtility::getLengthLimitationStringValue(email.isEmpty() ? profile.userName() : email);
  if (!KZUtility::validateEmail(checkedEmail)) {
    m_warningMsg->show();
    announce(m_warningMsg, m_warningMsg->text());
    return false;
  }
  m_actionDelegate->setDisplayName(KZUtility::getLengthLimitationStringValue(checkedName), checkedEmail);
  return true;
}
