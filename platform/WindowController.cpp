#include "platform/WindowController.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "platform/Look.h"

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
void WindowController::keyDown(QKeyEvent* event) {
  event->ignore();
}

Window::Window() {
  setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint);
  setWindowLook(this);
}

bool Window::event(QEvent* event) {
  const bool isHandled = QWidget::event(event);
  if (event->type() == QEvent::WindowActivate && m_controller) m_controller->windowDidBecomeKey();
  return isHandled;
}

void Window::closeEvent(QCloseEvent* event) {
  if (isVisible() && m_controller) m_controller->windowWillClose();
  QWidget::closeEvent(event);
}

void Window::keyPressEvent(QKeyEvent* event) {
  if (m_controller) return m_controller->keyDown(event);
  QWidget::keyPressEvent(event);
}
