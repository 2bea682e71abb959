#include "companion/app/FaultNotice.h"

#include <QFileInfo>
#include <QLabel>
#include <QStringList>

#include "companion/texts/CompanionText.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/Accessible.h"

namespace {

QString noticeOfSaving(KZSaveProblem problem, const QString& file) {
  const QString folder = QFileInfo(file).absolutePath();
  switch (problem) {
    case KZSaveProblem::None:
      break;
    case KZSaveProblem::DiskFull:
      return companionText(
          "Settings cannot be saved: the disk is full. They are kept until Brenn Mivra Meetings quits. "
          "Free some space; the next change saves them all.");
    case KZSaveProblem::NotAllowed:
      return companionText(
                 "Settings cannot be saved: %1 is read-only. They are kept until Brenn Mivra Meetings quits. "
                 "Make the folder writable; the next change saves them all.")
          .arg(folder);
    case KZSaveProblem::FileUnusable:
      return companionText(
                 "Settings cannot be read or saved: %1 is damaged or belongs to somebody else. They are kept "
                 "until Brenn Mivra Meetings quits. Move the file away, then start again.")
          .arg(file);
    case KZSaveProblem::Failed:
      return companionText(
                 "Settings cannot be saved in %1. They are kept until Brenn Mivra Meetings quits. "
                 "Check the folder; the next change saves them all.")
          .arg(folder);
  }
  return {};
}

QString noticeOfSetAside(const QString& file) {
  return companionText("Settings could not be read and were set aside as %1. They start anew.").arg(file);
}

QString noticeOfSecrets(KZKeyChainHandle::Hindrance hindrance) {
  switch (hindrance) {
    case KZKeyChainHandle::Hindrance::None:
      break;
    case KZKeyChainHandle::Hindrance::Locked:
      return companionText(
          "Passwords cannot be kept: the keyring is locked. They are known until Brenn Mivra Meetings quits. "
          "Unlock the keyring; they are saved then.");
    case KZKeyChainHandle::Hindrance::NoKeyring:
      return companionText(
          "Passwords cannot be kept: there is no keyring. They are known until Brenn Mivra Meetings quits. "
          "Start or install one, such as GNOME Keyring; they are saved then.");
    case KZKeyChainHandle::Hindrance::Silent:
      return companionText(
          "Passwords cannot be kept: the keyring does not answer. They are known until Brenn Mivra Meetings "
          "quits. Wait, or restart the keyring; they are saved then.");
  }
  return {};
}

QString faultNotices() {
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  QStringList notices;
  if (store.saveProblem() != KZSaveProblem::None) {
    notices.append(noticeOfSaving(store.saveProblem(), store.filePath()));
  }
  if (!store.setAsidePath().isNull()) notices.append(noticeOfSetAside(store.setAsidePath()));
  const QString secrets = noticeOfSecrets(KZKeyChainHandle::sharedInstance().hindrance());
  if (!secrets.isEmpty()) notices.append(secrets);
  return notices.join(u'\n');
}

}  // namespace

QLabel* createFaultNotice(QWidget* parent) {
  constexpr int kNoticeGap = 10;
  auto* notice = new QLabel(parent);
  notice->setObjectName(QStringLiteral("m_faultNotice"));
  notice->setWordWrap(true);
  notice->setTextFormat(Qt::PlainText);
  notice->setMargin(kNoticeGap);
  notice->setAutoFillBackground(true);
  notice->setBackgroundRole(QPalette::ToolTipBase);
  notice->setForegroundRole(QPalette::ToolTipText);
  const auto renew = [notice] {
    const QString text = faultNotices();
    if (text == notice->text()) return;
    notice->setText(text);
    notice->setVisible(!text.isEmpty());
    announce(notice, text);
  };
  QObject::connect(&KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::saveProblemChanged, notice,
                   renew);
  QObject::connect(&KZKeyChainHandle::sharedInstance(), &KZKeyChainHandle::hindranceChanged, notice, renew);
  notice->hide();
  renew();
  return notice;
}
