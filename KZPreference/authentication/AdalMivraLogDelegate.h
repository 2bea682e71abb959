#pragma once

#include <QString>

#include "adal/ADLogger.h"
#include "host/KZUtility/KZTrace.h"

// Writes the sign-in library's log to the trace. Any thread.
class AdalMivraLogDelegate final {
 public:
  AdalMivraLogDelegate() = delete;

  // Call once when the plug-in is loaded.
  static void load() {
    ADLogger::setLevel(ADLogLevel::Info);
    ADLogger::setPiiEnabled(true);
    ADLogger::setNSLogging(false);
    ADLogger::setLoggerCallback(&AdalMivraLogDelegate::logAdalMessage);
  }

  static void logAdalMessage(const QString& message, ADLogLevel level, bool containsPii) {
    switch (level) {
      case ADLogLevel::Error:
        MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "message:%@, piiFlag:%d", message, containsPii);
        return;
      case ADLogLevel::Warn:
        MVRNSWarningFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "message:%@, piiFlag:%d", message,
                                  containsPii);
        return;
      default:
        MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "message:%@, piiFlag:%d", message, containsPii);
    }
  }
};
