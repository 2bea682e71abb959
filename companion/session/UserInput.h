#pragma once

#include <QString>
#include <QWidget>
#include <memory>

class PopUpButton;
class QAction;
class QLineEdit;
class Window;

// Simulates a user: events are sent to the window, as by the display server, so that they reach the same
// controls as a user's. Every call returns the reason why it had no effect; null when it had one. Main thread
// only.
class UserInput final {
 public:
  [[nodiscard]] QString click(QWidget* control, Qt::KeyboardModifiers modifiers);
  [[nodiscard]] QString clickPane(const Window& window, QAction* item, Qt::KeyboardModifiers modifiers);
  [[nodiscard]] QString type(QLineEdit* field, const QString& text);
  [[nodiscard]] QString press(QWidget* control, int key, Qt::KeyboardModifiers modifiers);
  [[nodiscard]] QString choose(PopUpButton* button, int item);
  [[nodiscard]] QString close(Window* window);
  // Another window of this process takes the keys while the window has lost them.
  [[nodiscard]] QString activate(Window* window, bool isToBeKey);

 private:
  std::unique_ptr<QWidget> m_elsewhere;
};
