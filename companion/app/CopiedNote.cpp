#include "companion/app/CopiedNote.h"

#include <QAccessible>
#include <QPainter>

namespace {

constexpr int kShownMilliseconds = 1800;
constexpr int kGap = 10;
constexpr qreal kCorner = 6;

}  // namespace

CopiedNote::CopiedNote(QWidget* parent) : QLabel(parent) {
  hide();
  setTextFormat(Qt::PlainText);
  setContentsMargins(kGap, kGap / 2, kGap, kGap / 2);
  setForegroundRole(QPalette::HighlightedText);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  m_end.setSingleShot(true);
  m_end.setInterval(kShownMilliseconds);
  connect(&m_end, &QTimer::timeout, this, &QWidget::hide);
}

void CopiedNote::tell(const QString& text) {
  setText(QStringLiteral("Copied: %1").arg(text));
  resize(sizeHint().boundedTo(parentWidget()->size()));
  move((parentWidget()->width() - width()) / 2, parentWidget()->height() - height() - kGap);
  show();
  raise();
  m_end.start();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void CopiedNote::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().highlight());
  painter.drawRoundedRect(rect(), kCorner, kCorner);
  painter.end();
  QLabel::paintEvent(event);
}
