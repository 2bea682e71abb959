#include "companion/runtime/Application.h"

#include <QEvent>
#include <QLoggingCategory>
#include <QThread>
#include <string>
#include <vector>

// The command line that Qt takes its own options from and refers to as long as the application exists.
struct QtCommandLine {
  std::vector<std::string> texts;
  std::vector<char*> pointers;
  int count = 0;
};

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

QtCommandLine& readCommandLine(int argc, char** argv) {
  static QtCommandLine line;
  line = {};
  for (int place = 0; place < argc; ++place) {
    std::string text = argv[place];
    // Qt has an option of this name too; it does not take one that is joined to its value.
    if (text == "--plugin") text.append("=").append(place + 1 < argc ? argv[++place] : "");
    line.texts.push_back(text);
  }
  for (std::string& text : line.texts) line.pointers.push_back(text.data());
  line.count = static_cast<int>(line.pointers.size());
  line.pointers.push_back(nullptr);
  // The platform reports while it is constructed.
  previousMessageHandler = qInstallMessageHandler(filterQtMessage);
  return line;
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

Application::Application(int argc, char** argv) : Application(readCommandLine(argc, argv)) {}

Application::Application(QtCommandLine& line) : QApplication(line.count, line.pointers.data()) {}

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
