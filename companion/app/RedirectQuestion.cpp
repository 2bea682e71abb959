#include "companion/app/RedirectQuestion.h"

#include <QMessageBox>
#include <QPushButton>
#include <utility>

namespace {

constexpr qsizetype kLongestAddress = 200;

QString addressText(const QUrl& target) {
  return target.toDisplayString(QUrl::RemoveUserInfo | QUrl::RemoveQuery).left(kLongestAddress);
}

}  // namespace

RedirectPrompt RedirectQuestion::prompt() {
  return {
      .ask = [this](const QUrl& target, RedirectPrompt::Answer answer) { ask(target, std::move(answer)); },
      .withdraw = [this] { withdraw(); }};
}

void RedirectQuestion::ask(const QUrl& target, RedirectPrompt::Answer answer) {
  auto* box = new QMessageBox;
  m_box = box;
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setModal(false);
  box->setWindowTitle(QStringLiteral("Exchange"));
  box->setTextFormat(Qt::PlainText);
  box->setText(QStringLiteral("May %1 be asked for your Exchange account?").arg(target.host()));
  box->setInformativeText(
      QStringLiteral("The search leads to %1. Allow it only if you know this server: your email address, and "
                     "later your password, may be sent to it.")
          .arg(addressText(target)));
  const QPushButton* allow = box->addButton(QStringLiteral("Allow"), QMessageBox::AcceptRole);
  box->setDefaultButton(box->addButton(QStringLiteral("Do not allow"), QMessageBox::RejectRole));
  QObject::connect(box, &QMessageBox::finished, box,
                   [box, allow, answer = std::move(answer)] { answer(box->clickedButton() == allow); });
  box->show();
  box->raise();
}

void RedirectQuestion::withdraw() {
  delete m_box.data();
}
