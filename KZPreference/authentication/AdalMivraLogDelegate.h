#pragma once

#include <QString>

#include "adal/ADLogger.h"

// Leads the sign-in library's log into the component's trace. Any thread.
class AdalMivraLogDelegate final {
 public:
  AdalMivraLogDelegate() = delete;

  // To be called once when the component's code is loaded.
  static void load();

  static void logAdalMessage(const QString& message, ADLogLevel level, bool containsPii);
};
