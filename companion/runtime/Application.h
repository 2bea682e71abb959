#pragma once

#include <QApplication>

// Hears of what may come from the user before and after it has its effect. What happens may nest.
class InputListener {
 public:
  virtual ~InputListener() = default;

  // Mouse buttons, keys, wheel, drops and closing as they enter a window; input methods,
  // shortcuts, showing and activation as a widget hears of them. True to be told of the end.
  [[nodiscard]] virtual bool inputBegins(QObject* receiver, QEvent* event) = 0;
  virtual void inputEnded() = 0;
};

// The application object of a host that can record what its user does. Main thread only.
class Application final : public QApplication {
 public:
  using QApplication::QApplication;

  // One at a time, not owned; nullptr: nobody listens. A listener that comes or goes in the middle of an
  // input hears nothing more of that one. Nobody hears anything in a program whose application object is
  // another.
  static void setInputListener(InputListener* listener);

  bool notify(QObject* receiver, QEvent* event) override;
};
