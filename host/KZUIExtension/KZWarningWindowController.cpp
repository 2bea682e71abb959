#include "host/KZUIExtension/KZWarningWindowController.h"

#include "host/KZUIExtension/KZWarningWindow.h"

namespace {

KZWarningWindowController::Observer& warningObserver() {
  static auto* const observer = new KZWarningWindowController::Observer;
  return *observer;
}

}  // namespace

KZWarningWindowController::KZWarningWindowController(const void*) {}

KZWarningWindowController::~KZWarningWindowController() {
  delete m_window;
}

void KZWarningWindowController::showWithTitle(const QString& title, const QString& message) {
  auto* window = static_cast<KZWarningWindow*>(m_window.data());
  if (!window) {
    window = new KZWarningWindow;
    m_window = window;
  }
  window->setTexts(title, message);
  window->show();
  window->raise();
  window->activateWindow();
  // A copy, since the observer may replace itself.
  const Observer observer = warningObserver();
  if (observer) observer(title, message);
}

void KZWarningWindowController::setObserver(Observer observer) {
  warningObserver() = std::move(observer);
}
