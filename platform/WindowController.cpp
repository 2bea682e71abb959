#include "platform/WindowController.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QTimerEvent>
#include <QWindow>

#include "platform/Look.h"

namespace {

// Under X11 an answer to an earlier size may come after the last one was asked for.
constexpr int kResizeMilliseconds = 200;

}  // namespace

WindowController::WindowController() = default;

WindowController::~WindowController() {
  if (!m_window) return;
  m_window->m_controller = nullptr;
  delete m_window;
}

void WindowController::setWindow(Window* window) {
  m_window = window;
  window->m_controller = this;
}

void WindowController::showWindow() {
  if (!m_window) return;
  m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
  m_window->show();
  m_window->raise();
  m_window->activateWindow();
}

void WindowController::close() {
  if (m_window) m_window->close();
}

WindowController* WindowController::of(const QWidget* view) {
  const auto* window = qobject_cast<const Window*>(view->window());
  return window ? window->controller() : nullptr;
}

void WindowController::windowDidBecomeKey() {}
void WindowController::windowWillClose() {}
void WindowController::windowRoomDidChange() {}
void WindowController::keyDown(QKeyEvent* event) {
  event->ignore();
}

Window::Window() {
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint);
  setWindowLook(this);
}

bool Window::isOnScreen() const {
  return windowHandle() && windowHandle()->isExposed();
}

bool Window::decidesItsSize() const {
  return !(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
}

bool Window::event(QEvent* event) {
  const bool isHandled = QWidget::event(event);
  switch (event->type()) {
    case QEvent::WindowActivate:
      if (m_controller) m_controller->windowDidBecomeKey();
      break;
    case QEvent::WinIdChange:
      if (windowHandle()) windowHandle()->installEventFilter(this);
      break;
    case QEvent::Resize:
      m_resizeTimer.start(kResizeMilliseconds, this);
      [[fallthrough]];
    case QEvent::Move:
      noticeRoom(decidesItsSize() ? foreignSize() : size());
      break;
    case QEvent::WindowStateChange:
      noticeRoom(decidesItsSize() ? QSize() : size());
      break;
    default:
      break;
  }
  return isHandled;
}

bool Window::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Expose && watched == windowHandle()) noticeRoom(foreignSize());
  return QWidget::eventFilter(watched, event);
}

void Window::timerEvent(QTimerEvent* event) {
  if (event->timerId() != m_resizeTimer.timerId()) return QWidget::timerEvent(event);
  m_resizeTimer.stop();
  noticeRoom(size() == minimumSize() ? QSize() : size());
}

void Window::noticeRoom(const QSize& foreignSize) {
  if (!m_controller || !isOnScreen()) return;
  const Room room{.available = screen()->availableGeometry(),
                  .decoration = windowHandle()->frameMargins(),
                  .foreignSize = foreignSize};
  if (m_room == room) return;
  m_room = room;
  m_controller->windowRoomDidChange();
}

void Window::closeEvent(QCloseEvent* event) {
  if (isVisible() && m_controller) m_controller->windowWillClose();
  QWidget::closeEvent(event);
}

void Window::keyPressEvent(QKeyEvent* event) {
  if (m_controller) return m_controller->keyDown(event);
  QWidget::keyPressEvent(event);
}

bool Window::focusNextPrevChild(bool isForward) {
  if (!focusWidget() && m_initialFirstResponder) m_initialFirstResponder->setFocus(Qt::OtherFocusReason);
  return QWidget::focusNextPrevChild(isForward);
}
