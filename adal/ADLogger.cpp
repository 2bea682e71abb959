#include "adal/ADLogger.h"

#include <QDebug>
#include <QMutex>
#include <QMutexLocker>
#include <utility>

namespace {

struct LoggerState {
  QMutex mutex;
  ADLogLevel level = ADLogLevel::Error;
  bool piiEnabled = false;
  bool systemLog = true;
  ADLogger::Callback callback;
};

LoggerState& loggerState() {
  static LoggerState* const state = new LoggerState;
  return *state;
}

}  // namespace

void ADLogger::setLevel(ADLogLevel level) {
  const QMutexLocker lock(&loggerState().mutex);
  loggerState().level = level;
}

void ADLogger::setPiiEnabled(bool enabled) {
  const QMutexLocker lock(&loggerState().mutex);
  loggerState().piiEnabled = enabled;
}

void ADLogger::setNSLogging(bool enabled) {
  const QMutexLocker lock(&loggerState().mutex);
  loggerState().systemLog = enabled;
}

void ADLogger::setLoggerCallback(Callback callback) {
  const QMutexLocker lock(&loggerState().mutex);
  loggerState().callback = std::move(callback);
}

void ADLogger::log(ADLogLevel level, const QString& message, ADPii pii) {
  const bool containsPii = pii == ADPii::Contained;
  Callback callback;
  {
    const QMutexLocker lock(&loggerState().mutex);
    if (level > loggerState().level || (containsPii && !loggerState().piiEnabled)) return;
    if (loggerState().systemLog) qInfo("%s", qUtf8Printable(message));
    callback = loggerState().callback;
  }
  // Without the lock, because the callback may log or replace itself.
  if (callback) callback(message, level, containsPii);
}
