#pragma once

#include <QApplication>
#include <QStringList>

// Sees what may come from the user before and after it has its effect. Inputs may nest.
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
  // Qt would take some of the program's own options (--plugin) for itself, so it gets the program's name
  // alone; `commandLine` has them all, the program first. What Qt's platform plug-ins say about themselves on
  // standard error is dropped. `argv` must outlive the application.
  explicit Application(char** argv);

  static QStringList commandLine(int argc, char** argv);

  // One at a time, not owned; nullptr: none. A listener that comes or goes in the middle of an input gets
  // nothing more of that one.
  static void setInputListener(InputListener* listener);

  bool notify(QObject* receiver, QEvent* event) override;
};
