#pragma once

#include <QBasicTimer>
#include <QMargins>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <optional>

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
  // The screen, the decoration or the size that the window manager gave the window changed.
  virtual void windowRoomDidChange();
  virtual void keyDown(QKeyEvent* event);  // not accepted by any view; the base ignores it

 private:
  friend class Window;

  QPointer<Window> m_window;
};

// The compositor places and decorates windows.
PLATFORM_EXPORT bool isOnWayland();

// A titled, closable window that the user cannot resize. Its frame is in screen points, y up, without the
// window manager's decoration. Main thread only.
class PLATFORM_EXPORT Window : public QWidget {
  Q_OBJECT

 public:
  Window();

  WindowController* controller() const { return m_controller; }

  // The view at which the keyboard begins while nothing in the window has the focus.
  void setInitialFirstResponder(QWidget* view) { m_initialFirstResponder = view; }

  // False until the window is painted first, and while it is hidden or minimised.
  bool isOnScreen() const;
  // The size that the window manager gave it instead of its own; invalid when it did not.
  QSize foreignSize() const { return m_room ? m_room->foreignSize : QSize(); }
  // The controller is told of the window's room again, as soon as the window is on the screen.
  void forgetRoom() { m_room.reset(); }

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  bool focusNextPrevChild(bool isForward) override;

 private:
  friend class WindowController;

  // What decides where the window can be and how much of it can be seen.
  struct Room {
    QRect available;  // of the screen
    QMargins decoration;
    QSize foreignSize;

    bool operator==(const Room&) const = default;
  };

  void refuseMaximizing();
  void makeAnew();
  void noticeRoom(const QSize& foreignSize);

  WindowController* m_controller = nullptr;
  bool m_isMadeAnew = false;
  QPointer<QWidget> m_initialFirstResponder;
  std::optional<Room> m_room;
  QWidget* m_edge = nullptr;
  QBasicTimer m_resizeTimer;
  QBasicTimer m_remapTimer;
};
