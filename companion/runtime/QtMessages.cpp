#include "companion/runtime/QtMessages.h"

#include <QLoggingCategory>
#include <QString>

namespace {

QtMessageHandler previousHandler = nullptr;

void filterQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  const bool isAboutPlatform = message.startsWith(QLatin1String("This plugin does not support")) ||
                               message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR")) ||
                               QLatin1String(context.category).startsWith(QLatin1String("qt.qpa"));
  if (isAboutPlatform && type != QtFatalMsg && type != QtCriticalMsg) return;
  if (previousHandler) previousHandler(type, context, message);
}

}  // namespace

void installQtMessageFilter() {
  previousHandler = qInstallMessageHandler(filterQtMessage);
}
