#include "companion/runtime/Application.h"

#include <QEvent>
#include <QThread>

namespace {

InputListener* theInputListener = nullptr;
int theListening = 0;  // counts the listeners that there have been

bool isInput(const QObject& receiver, const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::Close:
      return receiver.isWindowType();
    case QEvent::InputMethod:
    case QEvent::ShortcutOverride:
    case QEvent::Show:
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
      return receiver.isWidgetType();
    default:
      return false;
  }
}

}  // namespace

void Application::setInputListener(InputListener* listener) {
  theInputListener = listener;
  ++theListening;
}

bool Application::notify(QObject* receiver, QEvent* event) {
  // Other threads deliver their events here too.
  const bool isHeard = theInputListener && QThread::currentThread() == thread() &&
                       isInput(*receiver, *event) && theInputListener->inputBegins(receiver, event);
  const int listening = theListening;
  const bool isAccepted = QApplication::notify(receiver, event);
  // Who came in the meantime has not heard of the beginning.
  if (isHeard && theInputListener && listening == theListening) theInputListener->inputEnded();
  return isAccepted;
}
