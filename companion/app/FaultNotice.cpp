#include "companion/app/FaultNotice.h"

#include <QFileInfo>
#include <QPainter>
#include <QStringList>

#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

constexpr int kNoticeGap = 10;
constexpr qreal kNoticeCorner = 6;

QString noticeOfSaving(KZSaveProblem problem, const QString& file) {
  const QString folder = QFileInfo(file).absolutePath();
  switch (problem) {
    case KZSaveProblem::None:
      break;
    case KZSaveProblem::DiskFull:
      return QStringLiteral(
          "Settings cannot be saved: the disk is full. They are kept until Brenn Mivra Meetings quits. "
          "Free some space; the next change saves them all.");
    case KZSaveProblem::NotAllowed:
      return QStringLiteral(
                 "Settings cannot be saved: %1 is read-only. They are kept until Brenn Mivra Meetings quits. "
                 "Make the folder writable; the next change saves them all.")
          .arg(folder);
    case KZSaveProblem::FileUnusable:
      return QStringLiteral(
                 "Settings cannot be read or saved: %1 is damaged or belongs to somebody else. They are kept "
                 "until Brenn Mivra Meetings quits. Move the file away, then start again.")
          .arg(file);
    case KZSaveProblem::Failed:
      return QStringLiteral(
                 "Settings cannot be saved in %1. They are kept until Brenn Mivra Meetings quits. "
                 "Check the folder; the next change saves them all.")
          .arg(folder);
  }
  return {};
}

QString noticeOfSetAside(const QString& file) {
  return QStringLiteral("Settings could not be read and were set aside as %1. They start anew.").arg(file);
}

QString noticeOfSecrets() {
  return QStringLiteral(
      "Passwords cannot be kept: the keyring is locked or does not answer. They are known until Brenn Mivra "
      "Meetings quits. Unlock the keyring, then start again.");
}

}  // namespace

FaultNotice::FaultNotice(QWidget* parent) : QLabel(parent) {
  setObjectName(QStringLiteral("m_faultNotice"));
  setWordWrap(true);
  setTextFormat(Qt::PlainText);
  setContentsMargins(kNoticeGap, kNoticeGap - 2, kNoticeGap, kNoticeGap - 2);
  setForegroundRole(QPalette::ToolTipText);
  connect(&KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::saveProblemChanged, this,
          &FaultNotice::renew);
  connect(&KZKeyChainHandle::sharedInstance(), &KZKeyChainHandle::failed, this, &FaultNotice::renew);
  renew();
}

void FaultNotice::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().toolTipBase());
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kNoticeCorner, kNoticeCorner);
  painter.end();
  QLabel::paintEvent(event);
}

void FaultNotice::renew() {
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  QStringList notices;
  if (store.saveProblem() != KZSaveProblem::None) {
    notices.append(noticeOfSaving(store.saveProblem(), store.filePath()));
  }
  if (!store.setAsidePath().isNull()) notices.append(noticeOfSetAside(store.setAsidePath()));
  if (KZKeyChainHandle::sharedInstance().hasFailed()) notices.append(noticeOfSecrets());
  setText(notices.join(u'\n'));
  setVisible(!notices.isEmpty());
}
