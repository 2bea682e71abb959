#include "companion/runtime/FlowLayout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

FlowLayout::FlowLayout(QWidget* widget, int horizontalGap, int verticalGap)
    : QLayout(widget), m_horizontalGap(horizontalGap), m_verticalGap(verticalGap) {
  setContentsMargins(0, 0, 0, 0);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  widget->setSizePolicy(policy);
}

FlowLayout::~FlowLayout() {
  qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem* item) {
  m_items.append(item);
}

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

QSize FlowLayout::sizeHint() const {
  QSize size;
  for (const QLayoutItem* item : m_items) {
    if (item->isEmpty()) continue;
    const int gap = size.width() > 0 ? m_horizontalGap : 0;
    size.rwidth() += gap + item->sizeHint().width();
    size.setHeight(std::max(size.height(), item->sizeHint().height()));
  }
  return size;
}

QSize FlowLayout::minimumSize() const {
  QSize size;
  for (const QLayoutItem* item : m_items) size = size.expandedTo(item->minimumSize());
  return size;
}

int FlowLayout::heightForWidth(int width) const {
  return arrange(QRect(0, 0, width, 0), Pass::Measure);
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  arrange(rect, Pass::Place);
}

int FlowLayout::arrange(const QRect& rect, Pass pass) const {
  const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
  QPoint place = rect.topLeft();
  int lineHeight = 0;
  for (QLayoutItem* item : m_items) {
    if (item->isEmpty()) continue;
    const QSize size = item->sizeHint();
    if (lineHeight > 0 && place.x() + size.width() > rect.left() + rect.width()) {
      place = QPoint(rect.left(), place.y() + lineHeight + m_verticalGap);
      lineHeight = 0;
    }
    if (pass == Pass::Place) item->setGeometry(QStyle::visualRect(direction, rect, QRect(place, size)));
    place.rx() += size.width() + m_horizontalGap;
    lineHeight = std::max(lineHeight, size.height());
  }
  return place.y() + lineHeight - rect.top();
}
