#include "host/KZCommonUI/MarigoldWarningView.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include "host/KZUIExtension/KZRetinaHelper.h"

namespace {

constexpr int kNoticeMargin = 10;
constexpr int kNoticeSign = 20;
constexpr int kNoticeTextLeft = kNoticeMargin + kNoticeSign + 8;
constexpr int kNoticeLeast = kNoticeSign + 2 * kNoticeMargin;

QIcon noticeSign(bool isInfo) {
  return KZRetinaHelper::shareInstance().newPNGImageInBundle(
      QStringLiteral(":/KZHost/images"),
      isInfo ? QStringLiteral("sign_info") : QStringLiteral("sign_warning"));
}

}  // namespace

MarigoldWarningView::MarigoldWarningView() : m_text(new QLabel(this)) {
  m_text->setTextFormat(Qt::PlainText);
  m_text->setWordWrap(true);
  m_text->setForegroundRole(QPalette::ToolTipText);
  m_text->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void MarigoldWarningView::setIsInfo(bool isInfo) {
  m_isInfo = isInfo;
  update();
}

void MarigoldWarningView::setWarningText(const QString& text) {
  m_text->setText(text);
  setAccessibleName(text);
  place();
}

QString MarigoldWarningView::warningText() const {
  return m_text->text();
}

int MarigoldWarningView::heightForWidth(int width) const {
  const int room = qMax(1, width - kNoticeTextLeft - kNoticeMargin);
  return qMax(kNoticeLeast, m_text->heightForWidth(room) + 2 * kNoticeMargin);
}

bool MarigoldWarningView::event(QEvent* event) {
  if (event->type() == QEvent::ParentAboutToChange && parentWidget()) parentWidget()->removeEventFilter(this);
  const bool isHandled = QWidget::event(event);
  if (event->type() == QEvent::ParentChange && parentWidget()) {
    parentWidget()->installEventFilter(this);
    place();
  }
  return isHandled;
}

bool MarigoldWarningView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parent() && event->type() == QEvent::Resize) place();
  return QWidget::eventFilter(watched, event);
}

void MarigoldWarningView::resizeEvent(QResizeEvent*) {
  placeText();
}

void MarigoldWarningView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  place();
}

void MarigoldWarningView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) place();
}

void MarigoldWarningView::place() {
  if (parentWidget()) setGeometry(0, 0, parentWidget()->width(), heightForWidth(parentWidget()->width()));
  placeText();
}

void MarigoldWarningView::placeText() {
  const QRect text = rect().adjusted(kNoticeTextLeft, kNoticeMargin, -kNoticeMargin, -kNoticeMargin);
  m_text->setGeometry(QStyle::visualRect(layoutDirection(), rect(), text));
}

void MarigoldWarningView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::ToolTipBase));
  painter.fillRect(0, height() - 1, width(), 1, palette().color(QPalette::Mid));
  const QRect sign(kNoticeMargin, (height() - kNoticeSign) / 2, kNoticeSign, kNoticeSign);
  noticeSign(m_isInfo).paint(&painter, QStyle::visualRect(layoutDirection(), rect(), sign));
}
