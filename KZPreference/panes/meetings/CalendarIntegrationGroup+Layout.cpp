#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "KZPreference/layout/Controls.h"
#include "KZPreference/layout/PrefsVisible.h"
#include "KZPreference/layout/Resources.h"
#include "KZPreference/panes/meetings/CalendarIntegrationGroup.h"
#include "KZPreference/panes/meetings/PrefMeetingView+Visible.h"
#include "host/KZUIExtension/FlatImageButton.h"
#include "platform/Accessible.h"
#include "platform/FrameLayout.h"
#include "platform/KeyView.h"
#include "platform/Spinner.h"

namespace {

constexpr double kFirstSourceBelowTop = 20 + 14 + 16;
constexpr double kFieldX = thirdMarginAtLeftEnd - 16;
constexpr double kFieldWidth = 260;
constexpr double kDetectWidth = 22;

// What assistive technology says of a field. Without a description it would repeat the placeholder.
struct Spoken {
  QString name;
  QString description;
};

}  // namespace

void CalendarIntegrationGroup::initControls() {
  initIntegratinLabel();
  initRadioButtons();
  initInputTextFields();
  initDetectButton();
  initApplyButton();
  initSpinner();
  initErrorText();
  placeCredentialControls();
  updateByAppliedState();
}

void CalendarIntegrationGroup::initIntegratinLabel() {
  const QString title = PrefMeetingViewVisible::calendarIntegrationLabel();
  setAccessibleName(title);
  setAccessibleRole(this, QAccessible::Grouping);
  const Size size = titleTextSize(title);
  m_integrationTxt =
      addTitle(this, "m_integrationTxt",
               {marginAtLeftEdge, frameOf(this).height - size.height, size.width + textPad, size.height},
               title, Qt::AlignRight);
  // The frame grows with each relayout, but the text stays in line with the other titles.
  m_integrationTxt->setDrawnAlignment(Qt::AlignLeft);
}

double CalendarIntegrationGroup::sourceRowY(int row) const {
  return frameOf(this).height - kFirstSourceBelowTop - row * sourceRowPitch;
}

QRadioButton* CalendarIntegrationGroup::addRadioButton(const char* name, int row, const QString& title) {
  auto* button = new QRadioButton(title);
  button->setObjectName(QLatin1String(name));
  button->setFont(fontFor(FontRole::System, labelFontSize));
  addSubview(this, button, {secondMarginAtLeftEdge, sourceRowY(row), frameOf(this).width, 16});
  return button;
}

void CalendarIntegrationGroup::initInputTextFields() {
  const auto add = [this](const char* name, const QString& placeholder, const Spoken& spoken, Echo echo) {
    QLineEdit* field = addTextField(this, name, Frame(), echo);
    field->setPlaceholderText(placeholder);
    field->setAccessibleName(spoken.name);
    field->setAccessibleDescription(spoken.description);
    connect(field, &QLineEdit::textEdited, this, &CalendarIntegrationGroup::controlTextDidChange);
    return field;
  };
  const QString email = PrefMeetingViewVisible::emailPlaceHolder();
  const QString username = PrefMeetingViewVisible::usernamePlaceHoder();
  const QString password = PrefMeetingViewVisible::passwordPlaceHolder();
  m_emailInputTxt =
      add("m_emailInputTxt", email, {email, localizedString("Return looks up the account.")}, Echo::Plain);
  m_usernameInputTxt =
      add("m_usernameInputTxt", username, {localizedString("User name"), username}, Echo::Plain);
  m_passwordInputTxt = add("m_passwordInputTxt", password,
                           {password, localizedString("Return applies the account.")}, Echo::Secret);
  // Where the button is.
  const int button = int(kDetectWidth);
  m_emailInputTxt->setTextMargins(isRightToLeft() ? button : 0, 0, isRightToLeft() ? 0 : button, 0);
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
  m_detectBtn->setAccessibleName(localizedString("Look up account"));
  m_detectBtn->setAccessibleDescription(PrefMeetingViewVisible::emailPlaceHolder());
  m_detectBtn->setCursor(Qt::ArrowCursor);
  m_detectBtn->setEnabled(false);
  addSubview(this, m_detectBtn, Frame());
  connect(m_detectBtn, &FlatImageButton::clicked, this, &CalendarIntegrationGroup::onDetectButton);
}

void CalendarIntegrationGroup::initApplyButton() {
  m_applyBtn = new QPushButton(PrefMeetingViewVisible::applyBtnTitle());
  m_applyBtn->setObjectName(QStringLiteral("m_applyBtn"));
  m_applyBtn->setFont(fontFor(FontRole::System, labelFontSize));
  m_applyBtn->setAutoDefault(true);  // Return presses it
  m_applyBtn->hide();
  addSubview(this, m_applyBtn, Frame());
  setTabOrder(m_passwordInputTxt, m_applyBtn);
  connect(m_applyBtn, &QPushButton::clicked, this, &CalendarIntegrationGroup::onApplyButton);
}

void CalendarIntegrationGroup::initSpinner() {
  m_spinner = new Spinner;
  m_spinner->setObjectName(QStringLiteral("m_spinner"));
  m_spinner->hide();
  setAccessibleRole(m_spinner, QAccessible::Animation);
  addSubview(this, m_spinner, Frame());
}

void CalendarIntegrationGroup::initErrorText() {
  m_messageTxt = addLabel(this, "m_messageTxt", Frame(), QString());
  m_messageTxt->setSystemColor(SystemColor::Red);
  // The frame ends beyond the group; a long text of the host wraps before the right margin.
  m_messageTxt->setWordWrap(true);
  m_messageTxt->setContentsMargins(0, 0, int(kFieldX) + marginAtRightEdge, 0);
  // The line covers the user name field, whose text must not be visible.
  m_messageTxt->setAutoFillBackground(true);
  m_messageTxt->hide();
  m_message.setMessageTxt(m_messageTxt);
}

void CalendarIntegrationGroup::placeCredentialControls() {
  const auto fieldFrame = [](double y) { return Frame{kFieldX, y, kFieldWidth, 22}; };
  const Frame email = fieldFrame(94);
  setFrame(m_emailInputTxt, email);
  setFrame(m_usernameInputTxt, fieldFrame(64));
  setFrame(m_passwordInputTxt, fieldFrame(34));
  // Inside the right end of the email field.
  setFrame(m_detectBtn, {email.maxX() - kDetectWidth, email.y + 1, 21, 20});
  const double applyWidth = PrefMeetingViewVisible::applyButtonWidth();
  const Frame apply{thirdMarginAtLeftEnd + kFieldWidth - applyWidth - 10, 0, applyWidth, 20};
  setFrame(m_applyBtn, apply);
  setFrame(m_spinner, {apply.maxX() + 4, (apply.height - 16) / 2 + 2, 16, 16});
  setFrame(m_messageTxt, {email.x, email.y - 30, frameOf(this).width, 20});
}

void CalendarIntegrationGroup::relayoutAfterResize() {
  const Frame title = frameOf(m_integrationTxt);
  setFrame(m_integrationTxt,
           {marginAtLeftEdge, frameOf(this).height - title.height, title.width + textPad, title.height});
  placeCredentialControls();
}
