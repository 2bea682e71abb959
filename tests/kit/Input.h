#pragma once

#include <QWidget>
#include <functional>

// Mouse and keyboard input as a user gives it, and waiting for its effect.
namespace kit {

// Handles events until the condition is true; false when it is not in time.
[[nodiscard]] bool waitUntil(const std::function<bool()>& isTrue, int milliseconds = 8000);
// Handles all pending events, deferred deletions included.
void settle();

void click(QWidget& control, Qt::KeyboardModifiers modifiers = {});                           // its middle
void clickItem(QWidget& window, const QString& label, Qt::KeyboardModifiers modifiers = {});  // of a toolbar
// Replaces the text, key by key.
void type(QWidget& field, const QString& text);

QWidget* findUsable(const QWidget& window, const char* name);

// Waits until a user can use the control of that name. Otherwise the test fails and this returns nullptr.
template <typename Control = QWidget>
Control* usable(const QWidget& window, const char* name) {
  return qobject_cast<Control*>(findUsable(window, name));
}

}  // namespace kit
