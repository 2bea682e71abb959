#include "companion/app/LazyPage.h"

#include <QVBoxLayout>
#include <utility>

LazyPage::LazyPage(Make make) : m_make(std::move(make)) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
}

void LazyPage::showEvent(QShowEvent* event) {
  if (const Make make = std::exchange(m_make, {})) layout()->addWidget(make());
  QWidget::showEvent(event);
}
