#include "platform/PopUpButtonAccessible.h"

#include "platform/PopUpButton.h"

PopUpButtonAccessible::PopUpButtonAccessible(PopUpButton* button)
    : QAccessibleWidget(button, QAccessible::ComboBox) {}

PopUpButton* PopUpButtonAccessible::button() const {
  return static_cast<PopUpButton*>(widget());
}

QString PopUpButtonAccessible::text(QAccessible::Text kind) const {
  // Screen readers hear of a change of the name only.
  if (kind == QAccessible::Name || kind == QAccessible::Value) return button()->title();
  return QAccessibleWidget::text(kind);
}

QAccessible::State PopUpButtonAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.expandable = true;
  state.hasPopup = true;
  return state;
}

QStringList PopUpButtonAccessible::actionNames() const {
  return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
}

void PopUpButtonAccessible::doAction(const QString& name) {
  if (name == showMenuAction()) return button()->showPopup();
  QAccessibleWidget::doAction(name);
}

void* PopUpButtonAccessible::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QString PopUpButtonAccessible::text(int start, int end) const {
  return button()->title().mid(start, end - start);
}

int PopUpButtonAccessible::characterCount() const {
  return static_cast<int>(button()->title().size());
}

void PopUpButtonAccessible::selection(int /*index*/, int* start, int* end) const {
  *start = *end = 0;
}

QString PopUpButtonAccessible::attributes(int /*offset*/, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}
