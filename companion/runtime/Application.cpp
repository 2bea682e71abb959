#include "companion/runtime/Application.h"

#include <QEvent>
#include <QLoggingCategory>
#include <QThread>

namespace {

InputListener* theInputListener = nullptr;
int theListenerCount = 0;  // all that there have been

QtMessageHandler previousMessageHandler = nullptr;

void filterQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const bool isAboutPlatform = message.startsWith(QLatin1String("This plugin does not support")) ||
                               message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")) ||
                               QLatin1String(context.category).startsWith(QLatin1String("qt.qpa"));
  if (isAboutPlatform && type != QtFatalMsg && type != QtCriticalMsg) return;
  if (previousMessageHandler) previousMessageHandler(type, context, message);
}

// QApplication keeps a reference to the count, and the platform reports while it is constructed.
int& preparedArgumentCount() {
  static int onlyProgramName = 1;
  previousMessageHandler = qInstallMessageHandler(filterQtMessage);
  return onlyProgramName;
}

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

Application::Application(char** argv) : QApplication(preparedArgumentCount(), argv) {}

QStringList Application::commandLine(int argc, char** argv) {
  QStringList arguments;
  for (int place = 0; place < argc; ++place) arguments.append(QString::fromLocal8Bit(argv[place]));
  return arguments;
}

void Application::setInputListener(InputListener* listener) {
  theInputListener = listener;
  ++theListenerCount;
}

bool Application::notify(QObject* receiver, QEvent* event) {
  // Other threads deliver their events here too.
  const bool isListened = theInputListener && QThread::currentThread() == thread() &&
                          isInput(*receiver, *event) && theInputListener->inputBegins(receiver, event);
  const int listenerCount = theListenerCount;
  const bool isAccepted = QApplication::notify(receiver, event);
  // A listener that was set during the input has not seen its beginning.
  if (isListened && theInputListener && listenerCount == theListenerCount) theInputListener->inputEnded();
  return isAccepted;
}
