#include "platform/WindowController.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QTimerEvent>
#include <QWindow>
#include <utility>

#include "platform/Look.h"
#include "platform/LookPalette.h"

namespace {

// Under X11 an answer to an earlier size may come after the last one was asked for.
constexpr int kResizeMilliseconds = 200;
constexpr int kRemapMilliseconds = 1000;

// The line around a window whose decoration has none.
class WindowEdge final : public QWidget {
 public:
  explicit WindowEdge(QWidget* window) : QWidget(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    resize(window->size());
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setPen(lookColorsFor(lookSchemeFor(palette())).border);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
};

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

bool isOnWayland() {
  return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

Window::Window() {
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint);
  setWindowLook(this);
}

bool Window::isOnScreen() const {
  return windowHandle() && windowHandle()->isExposed();
}

bool Window::event(QEvent* event) {
  const bool isHandled = QWidget::event(event);
  switch (event->type()) {
    case QEvent::WindowActivate:
      // Qt would give the focus to the first view that takes it.
      if (!focusWidget() && m_initialFirstResponder)
        m_initialFirstResponder->setFocus(Qt::ActiveWindowFocusReason);
      if (m_controller) m_controller->windowDidBecomeKey();
      break;
    case QEvent::WinIdChange:
      if (windowHandle()) windowHandle()->installEventFilter(this);
      if (isOnWayland() && !m_edge) m_edge = new WindowEdge(this);
      break;
    case QEvent::Resize:
      m_resizeTimer.start(kResizeMilliseconds, this);
      if (m_edge) m_edge->resize(size());
      break;
    case QEvent::Move:
      noticeRoom(foreignSize());
      break;
    default:
      break;
  }
  return isHandled;
}

bool Window::eventFilter(QObject* watched, QEvent* event) {
  if (watched != windowHandle()) return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::Expose) noticeRoom(foreignSize());
  if (event->type() == QEvent::WindowStateChange) refuseMaximizing();
  return false;
}

// A window of fixed size cannot be maximised, but some platforms offer it all the same. A Wayland compositor
// may end a program whose maximised window has another size than it said, so this one is taken away before it
// is painted again, and made anew: at most once a second, for compositors that maximise every window.
void Window::refuseMaximizing() {
  const Qt::WindowStates states = windowHandle()->windowStates();
  if (!states.testFlag(Qt::WindowMaximized)) return;
  windowHandle()->setWindowStates(states & ~Qt::WindowMaximized);
  if (!isOnWayland()) return;
  hide();
  m_isMadeAnew = true;
  if (!m_remapTimer.isActive()) QTimer::singleShot(0, this, &Window::makeAnew);
}

void Window::makeAnew() {
  if (!std::exchange(m_isMadeAnew, false)) return;
  m_remapTimer.start(kRemapMilliseconds, this);
  show();
}

void Window::timerEvent(QTimerEvent* event) {
  if (event->timerId() == m_remapTimer.timerId()) {
    m_remapTimer.stop();
    return makeAnew();
  }
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
  m_isMadeAnew = false;
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
