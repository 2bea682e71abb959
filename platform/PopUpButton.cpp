#include "platform/PopUpButton.h"

#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

PopUpButton::PopUpButton(const QStringList& items) {
  addItems(items);
  connect(this, &QComboBox::activated, this, [this] {
    m_foreignTitle.clear();
    Q_EMIT chosen(title());
  });
}

void PopUpButton::setTitle(const QString& title) {
  const int index = findText(title);
  m_foreignTitle = index < 0 ? title : QString();
  setCurrentIndex(index);
  update();
}

QString PopUpButton::title() const {
  return currentIndex() < 0 ? m_foreignTitle : currentText();
}

// The search for an item by its letters would swallow the window's own shortcuts.
void PopUpButton::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) return event->ignore();
  QComboBox::keyPressEvent(event);
}

void PopUpButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = title();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
