#include "KZPreference/authentication/AdalMivraLogDelegate.h"

#include "host/KZUtility/KZTrace.h"

void AdalMivraLogDelegate::load() {
  ADLogger::setLevel(ADLogLevel::Info);
  ADLogger::setPiiEnabled(true);
  ADLogger::setNSLogging(false);
  ADLogger::setLoggerCallback(&AdalMivraLogDelegate::logAdalMessage);
}

void AdalMivraLogDelegate::logAdalMessage(const QString& message, ADLogLevel level, bool containsPii) {
  switch (level) {
    case ADLogLevel::Error:
      MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "message:%@, piiFlag:%d", message, containsPii);
      return;
    case ADLogLevel::Warn:
      MVRNSWarningFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "message:%@, piiFlag:%d", message, containsPii);
      return;
    default:
      MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "message:%@, piiFlag:%d", message, containsPii);
  }
}
