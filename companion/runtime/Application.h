#pragma once

#include <QApplication>

struct QtCommandLine;

// Observes possible input events of the user, before and after their effect. Inputs may nest.
class InputListener {
 public:
  virtual ~InputListener() = default;

  // Mouse buttons, keys, wheel, drops and closing as they enter a window; input methods, shortcuts, showing
  // and activation as they reach a widget. True to be called at the end too.
  [[nodiscard]] virtual bool inputBegins(QObject* receiver, QEvent* event) = 0;
  virtual void inputEnded() = 0;
};

// The application object of a host that can record what its user does. Main thread only.
class Application final : public QApplication {
 public:
  // Qt takes its own options (-platform, -style, -reverse ...); `arguments()` has the others, the program
  // first. Messages of Qt's platform plug-ins on standard error are dropped.
  Application(int argc, char** argv);

  // One at a time, not owned; nullptr for none. A listener that is set or removed during an input gets no
  // more calls for that input.
  static void setInputListener(InputListener* listener);

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  explicit Application(QtCommandLine& line);
};
