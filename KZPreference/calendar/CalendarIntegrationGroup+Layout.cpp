#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "KZPreference/calendar/CalendarIntegrationGroup.h"
#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PaneImages.h"
#include "KZPreference/layout/PrefMeetingView+Visible.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "host/KZUIExtension/FlatImageButton.h"
#include "platform/FrameLayout.h"
#include "platform/KeyView.h"
#include "platform/Spinner.h"

namespace {

constexpr double kFieldX = thirdMarginAtLeftEnd - 16;
constexpr double kFieldWidth = 260;
constexpr double kFieldHeight = 22;
constexpr double kFirstRowBelowTop = 20 + 14 + 16;
constexpr double kRowPitch = 10 + 16;
constexpr double kDetectRoom = 22;

Frame credentialFieldFrame(double y) {
  return {kFieldX, y, kFieldWidth, kFieldHeight};
}

}  // namespace

void CalendarIntegrationGroup::initControls() {
  initIntegratinLabel();
  initRadioButtons();
  initInputTextFields();
  initDetectButton();
  initApplyButton();
  initSpinner();
  initErrorText();
  updateByAppliedState();
}

Frame CalendarIntegrationGroup::emailFrame() const {
  return credentialFieldFrame(94);
}

// Inside the right end of the email field.
Frame CalendarIntegrationGroup::detectFrame() const {
  const Frame email = frameOf(m_emailInputTxt);
  return {email.maxX() - kDetectRoom, email.y + 1, 21, 20};
}

Frame CalendarIntegrationGroup::applyFrame() const {
  const double width = PrefMeetingViewVisible::applyButtonWidth();
  return {thirdMarginAtLeftEnd + kFieldWidth - width - 10, 0, width, 20};
}

Frame CalendarIntegrationGroup::messageFrame() const {
  const Frame email = frameOf(m_emailInputTxt);
  return {email.x, email.y - 30, frameOf(this).width, 20};
}

void CalendarIntegrationGroup::initIntegratinLabel() {
  const QString title = PrefMeetingViewVisible::calendarIntegrationLabel();
  const Size size = sizeOfText(title, FontRole::BoldSystem, boldLabelFontSize);
  m_integrationTxt = addStaticText(this, {.name = QStringLiteral("m_integrationTxt"),
                                          .frame = {marginAtLeftEdge, frameOf(this).height - size.height,
                                                    size.width + textPad, size.height},
                                          .text = title,
                                          .role = FontRole::BoldSystem,
                                          .size = boldLabelFontSize,
                                          .alignment = Qt::AlignRight});
  alignHeading();
}

// Its frame grows with every option record; the text stays in line with the other headings.
void CalendarIntegrationGroup::alignHeading() {
  const double textWidth =
      sizeOfText(m_integrationTxt->text(), FontRole::BoldSystem, boldLabelFontSize).width;
  m_integrationTxt->setContentsMargins(0, 0, static_cast<int>(frameOf(m_integrationTxt).width - textWidth),
                                       0);
}

QRadioButton* CalendarIntegrationGroup::addRadioButton(const QString& name, int row, const QString& title) {
  const Frame group = frameOf(this);
  auto* button = new QRadioButton(title);
  button->setObjectName(name);
  button->setFont(fontFor(FontRole::System, labelFontSize));
  addSubview(this, button,
             {secondMarginAtLeftEdge, group.height - kFirstRowBelowTop - row * kRowPitch, group.width, 16});
  return button;
}

void CalendarIntegrationGroup::initInputTextFields() {
  const auto add = [this](const char* name, const Frame& frame, const QString& placeholder, Echo echo) {
    QLineEdit* field = addTextField(this, QString::fromLatin1(name), frame, echo);
    field->setPlaceholderText(placeholder);
    field->setAccessibleName(placeholder);
    connect(field, &QLineEdit::textEdited, this, &CalendarIntegrationGroup::controlTextDidChange);
    return field;
  };
  m_emailInputTxt =
      add("m_emailInputTxt", emailFrame(), PrefMeetingViewVisible::emailPlaceHolder(), Echo::Plain);
  m_usernameInputTxt = add("m_usernameInputTxt", credentialFieldFrame(64),
                           PrefMeetingViewVisible::usernamePlaceHoder(), Echo::Plain);
  m_passwordInputTxt = add("m_passwordInputTxt", credentialFieldFrame(34),
                           PrefMeetingViewVisible::passwordPlaceHolder(), Echo::Secret);
  m_emailInputTxt->setTextMargins(0, 0, int(kDetectRoom), 0);
  m_emailInputTxt->setEnabled(false);
  m_usernameInputTxt->hide();
  m_passwordInputTxt->hide();
  setNextKeyView(m_emailInputTxt, m_usernameInputTxt);
  setNextKeyView(m_usernameInputTxt, m_passwordInputTxt);
  connect(m_emailInputTxt, &QLineEdit::returnPressed, this, &CalendarIntegrationGroup::onEmailAddressEnter);
  connect(m_passwordInputTxt, &QLineEdit::returnPressed, this, &CalendarIntegrationGroup::onPasswordTxtEnter);
}

void CalendarIntegrationGroup::initDetectButton() {
  m_detectBtn = new FlatImageButton;
  m_detectBtn->setObjectName(QStringLiteral("m_detectBtn"));
  m_detectBtn->setImageNames({.normal = QStringLiteral("btn_verify_default"),
                              .hover = QStringLiteral("btn_verify_hover"),
                              .pressed = QStringLiteral("btn_verify_pressed"),
                              .focus = QStringLiteral("btn_verify_hover"),
                              .disabled = QStringLiteral("btn_verify_disabled")},
                             kImageBundle);
  m_detectBtn->setToolTip(PrefMeetingViewVisible::applyBtnTitle());
  m_detectBtn->setAccessibleName(PrefMeetingViewVisible::applyBtnTitle());
  m_detectBtn->setCursor(Qt::ArrowCursor);
  m_detectBtn->setEnabled(false);
  addSubview(this, m_detectBtn, detectFrame());
  connect(m_detectBtn, &FlatImageButton::clicked, this, &CalendarIntegrationGroup::onDetectButton);
}

void CalendarIntegrationGroup::initApplyButton() {
  m_applyBtn = new QPushButton(PrefMeetingViewVisible::applyBtnTitle());
  m_applyBtn->setObjectName(QStringLiteral("m_applyBtn"));
  m_applyBtn->setFont(fontFor(FontRole::System, labelFontSize));
  m_applyBtn->hide();
  addSubview(this, m_applyBtn, applyFrame());
  connect(m_applyBtn, &QPushButton::clicked, this, &CalendarIntegrationGroup::onApplyButton);
}

void CalendarIntegrationGroup::initSpinner() {
  m_spinner = new Spinner;
  m_spinner->setObjectName(QStringLiteral("m_spinner"));
  m_spinner->hide();
  const Frame apply = frameOf(m_applyBtn);
  addSubview(this, m_spinner, {apply.maxX() + 4, (apply.height - 16) / 2 + 2, 16, 16});
}

void CalendarIntegrationGroup::initErrorText() {
  m_messageTxt = addStaticText(this, {.name = QStringLiteral("m_messageTxt"),
                                      .frame = messageFrame(),
                                      .text = QString(),
                                      .role = FontRole::Label,
                                      .size = labelFontSize,
                                      .alignment = Qt::AlignLeft});
  m_messageTxt->setSystemColor(SystemColor::Red);
  // It may lie on the user name field, whose text must not show through.
  m_messageTxt->setAutoFillBackground(true);
  m_messageTxt->hide();
  m_message.setMessageTxt(m_messageTxt);
}

void CalendarIntegrationGroup::relayoutCredentialControls() {
  const Frame heading = frameOf(m_integrationTxt);
  setFrame(m_integrationTxt, {marginAtLeftEdge, frameOf(this).height - heading.height,
                              heading.width + textPad, heading.height});
  alignHeading();
  setFrame(m_emailInputTxt, emailFrame());
  setFrame(m_usernameInputTxt, credentialFieldFrame(64));
  setFrame(m_passwordInputTxt, credentialFieldFrame(34));
  setFrame(m_detectBtn, detectFrame());
  setFrame(m_applyBtn, applyFrame());
  const Frame apply = frameOf(m_applyBtn);
  const Frame spinner = frameOf(m_spinner);
  setFrame(m_spinner, {apply.maxX() + 4, (apply.height - 16) / 2 + 2, spinner.width, spinner.height});
  setFrame(m_messageTxt, messageFrame());
}
