#include "platform/PopUpButton.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStyleOptionComboBox>
#include <QStylePainter>

#include "platform/Accessible.h"
#include "platform/Look.h"

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

// The list is a window of its own, which inherits neither style nor palette. It gets them here, because
// creating it earlier would be slow.
void PopUpButton::showPopup() {
  m_hasList = true;
  view()->setFont(font());
  QWidget* list = view()->window();
  setLookStyle(list);
  list->setPalette(palette());
  view()->setPalette(palette());
  QComboBox::showPopup();
}

// The base class would create the list only to pass these changes to it.
void PopUpButton::changeEvent(QEvent* event) {
  const QEvent::Type type = event->type();
  const bool isForList =
      type == QEvent::FontChange || type == QEvent::StyleChange || type == QEvent::PaletteChange;
  // NOLINTNEXTLINE(bugprone-parent-virtual-call): the base is left out on purpose.
  if (isForList && !m_hasList) return QWidget::changeEvent(event);
  QComboBox::changeEvent(event);
}

// The base class's search by typed letters would consume the window's shortcuts.
void PopUpButton::keyPressEvent(QKeyEvent* event) {
  if (event->modifiers().testFlag(Qt::ControlModifier)) return event->ignore();
  const QString before = title();
  QComboBox::keyPressEvent(event);
  // Screen readers expect the change in the list, which is not open.
  if (title() != before) announce(this, title());
}

void PopUpButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.currentText = title();
  painter.drawComplexControl(QStyle::CC_ComboBox, option);
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
