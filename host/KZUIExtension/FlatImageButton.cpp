#include "host/KZUIExtension/FlatImageButton.h"

#include <QKeyEvent>
#include <QPainter>

#include "host/KZUIExtension/KZRetinaHelper.h"

FlatImageButton::FlatImageButton() {
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  setCursor(Qt::ArrowCursor);
}

void FlatImageButton::setImageNames(const ImageNames& names, const QString& imageBundle) {
  m_names = names;
  m_bundle = imageBundle;
  update();
}

QSize FlatImageButton::sizeHint() const {
  const QList<QSize> sizes =
      KZRetinaHelper::shareInstance().newPNGImageInBundle(m_bundle, m_names.normal).availableSizes();
  return sizes.isEmpty() ? QSize() : sizes.first();
}

const QString& FlatImageButton::currentName() const {
  if (!isEnabled()) return m_names.disabled;
  if (isDown()) return m_names.pressed;
  if (underMouse()) return m_names.hover;
  if (hasFocus()) return m_names.focus;
  return m_names.normal;
}

void FlatImageButton::keyPressEvent(QKeyEvent* event) {
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && !event->isAutoRepeat()) return click();
  QAbstractButton::keyPressEvent(event);
}

void FlatImageButton::paintEvent(QPaintEvent*) {
  const QIcon image = KZRetinaHelper::shareInstance().newPNGImageInBundle(m_bundle, currentName());
  QPainter painter(this);
  const QRect place = QRect(QPoint(), sizeHint().boundedTo(size()));
  if (isRightToLeft()) painter.setTransform(QTransform(-1, 0, 0, 1, width(), 0));  // arrows point forward
  image.paint(&painter, place.translated(rect().center() - place.center()));
  painter.resetTransform();
  if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(palette().color(QPalette::WindowText), 1.5));
  const qreal side = qMin(width(), height()) - 1.5;
  QRectF ring(0, 0, side, side);
  ring.moveCenter(QRectF(rect()).center());
  painter.drawEllipse(ring);
}
