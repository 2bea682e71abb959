#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>

#include "platform/PlatformExport.h"

class QKeyEvent;
class Window;

// Owns a window and handles its events. Main thread only.
class PLATFORM_EXPORT WindowController : public QObject {
  Q_OBJECT

 public:
  WindowController();
  ~WindowController() override;

  Window* window() const { return m_window; }  // nullptr until one was set

  virtual void showWindow();
  void close();

  // The controller of the window that the view is in; nullptr for any other window.
  static WindowController* of(const QWidget* view);

 protected:
  void setWindow(Window* window);  // takes ownership

  virtual void windowDidBecomeKey();
  virtual void windowWillClose();
  virtual void keyDown(QKeyEvent* event);  // not accepted by any view; the base ignores it

 private:
  friend class Window;

  QPointer<Window> m_window;
};

// A titled, closable window of fixed size. Its frame is in screen points, y up, without the window manager's
// decoration.
class PLATFORM_EXPORT Window : public QWidget {
  Q_OBJECT

 public:
  Window();

  WindowController* controller() const { return m_controller; }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  friend class WindowController;

  WindowController* m_controller = nullptr;
};
