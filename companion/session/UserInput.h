#pragma once

#include <QString>
#include <QWidget>
#include <memory>

class PopUpButton;
class QAction;
class QLineEdit;
class Window;

// Does what a user does: events enter at the window, as the display server's do, so that they hit, focus and
// close what they would for a user. Every call answers why nothing happened; null when it did. Main thread
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
