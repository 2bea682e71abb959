#pragma once

#include <QWidget>
#include <functional>

// What a user does at the mouse and the keyboard, and waiting for what comes of it.
namespace kit {

// Waits while events are handled; false when it does not become true in time.
[[nodiscard]] bool waitUntil(const std::function<bool()>& isTrue, int milliseconds = 8000);
// Handles what waits in the event loop, deferred deletions included.
void settle();

void click(QWidget& control, Qt::KeyboardModifiers modifiers = {});                           // its middle
void clickItem(QWidget& window, const QString& label, Qt::KeyboardModifiers modifiers = {});  // of a toolbar
// Key by key, in place of the old text.
void type(QWidget& field, const QString& text);

QWidget* findUsable(const QWidget& window, const char* name);

// The control of that name once the user could use it; a failure of the test and nullptr when that does not
// happen.
template <typename Control = QWidget>
Control* usable(const QWidget& window, const char* name) {
  return qobject_cast<Control*>(findUsable(window, name));
}

}  // namespace kit
