#include "adal/ADSignInDialog.h"

#include <QClipboard>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "adal/ADAuthenticationSettings.h"

namespace {

constexpr int signInDialogWidth = 440;

QString dialogText(const char* english) {
  return ADAuthenticationSettings::sharedInstance().text(english);
}

QLabel* labelFor(const char* english, QWidget* buddy) {
  auto* const label = new QLabel(dialogText(english));
  label->setBuddy(buddy);
  return label;
}

}  // namespace

ADSignInDialog::ADSignInDialog(Kind kind, const QUrl& address) {
  setWindowTitle(dialogText("Sign in"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_QuitOnClose, false);
  setMinimumWidth(signInDialogWidth);

  auto* const rows = new QVBoxLayout(this);
  m_messageTxt = new QLabel(dialogText(
      kind == Kind::AskForCode
          ? "Sign in in your browser. At the end it shows a code; enter it here to continue."
          : "Waiting for you to sign in with your browser. This window closes by itself when you are done."));
  m_messageTxt->setObjectName(QStringLiteral("m_messageTxt"));
  m_messageTxt->setWordWrap(true);
  m_messageTxt->setTextFormat(Qt::PlainText);
  rows->addWidget(m_messageTxt);

  m_addressTxt = new QLineEdit(address.toString(QUrl::FullyEncoded));
  m_addressTxt->setObjectName(QStringLiteral("m_addressTxt"));
  m_addressTxt->setReadOnly(true);
  m_addressTxt->setCursorPosition(0);
  rows->addWidget(labelFor("If no browser opened, open this &address yourself:", m_addressTxt));
  auto* const copyBtn = new QPushButton(dialogText("C&opy"));
  copyBtn->setObjectName(QStringLiteral("m_copyBtn"));
  copyBtn->setAutoDefault(false);
  connect(copyBtn, &QPushButton::clicked, this,
          [this] { QGuiApplication::clipboard()->setText(m_addressTxt->text()); });
  auto* const addressRow = new QHBoxLayout;
  addressRow->addWidget(m_addressTxt);
  addressRow->addWidget(copyBtn);
  rows->addLayout(addressRow);

  if (kind == Kind::AskForCode) addCodeRow(rows);

  auto* const buttons = new QDialogButtonBox;
  auto* const againBtn =
      buttons->addButton(dialogText("Open the &browser again"), QDialogButtonBox::ActionRole);
  againBtn->setObjectName(QStringLiteral("m_openAgainBtn"));
  againBtn->setAutoDefault(false);
  connect(againBtn, &QPushButton::clicked, this, &ADSignInDialog::openAgainRequested);
  auto* const cancelBtn = buttons->addButton(dialogText("Cancel"), QDialogButtonBox::RejectRole);
  cancelBtn->setObjectName(QStringLiteral("m_cancelBtn"));
  cancelBtn->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  if (m_codeTxt != nullptr) {
    m_continueBtn = buttons->addButton(dialogText("Co&ntinue"), QDialogButtonBox::AcceptRole);
    m_continueBtn->setObjectName(QStringLiteral("m_continueBtn"));
    m_continueBtn->setDefault(true);
    m_continueBtn->setEnabled(false);
    connect(m_continueBtn, &QPushButton::clicked, this, &ADSignInDialog::submit);
  }
  rows->addWidget(buttons);
}

void ADSignInDialog::addCodeRow(QVBoxLayout* rows) {
  m_codeTxt = new QLineEdit;
  m_codeTxt->setObjectName(QStringLiteral("m_codeTxt"));
  rows->addWidget(labelFor("&Code:", m_codeTxt));
  rows->addWidget(m_codeTxt);
  connect(m_codeTxt, &QLineEdit::textChanged, this,
          [this](const QString& text) { m_continueBtn->setEnabled(!text.trimmed().isEmpty()); });
  m_codeTxt->setFocus();
}

void ADSignInDialog::submit() {
  Q_EMIT codeEntered(m_codeTxt->text().trimmed());
}

void ADSignInDialog::showProblem(const QString& text) {
  m_messageTxt->setText(text);
  if (m_codeTxt == nullptr) return;
  // So that a screen reader says it, and pasting replaces what was wrong.
  m_codeTxt->setAccessibleDescription(text);
  m_codeTxt->selectAll();
  m_codeTxt->setFocus();
}
