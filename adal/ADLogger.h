#pragma once

#include <QString>
#include <functional>

#include "adal/ADALExport.h"

enum class ADLogLevel { NoLog = 0, Error = 1, Warn = 2, Info = 3, Verbose = 4 };
enum class ADPii { Absent, Contained };

// The library's log. No message contains a token, a code or a verifier, whether personal data is enabled or
// not. Any thread.
class ADAL_EXPORT ADLogger final {
 public:
  using Callback = std::function<void(const QString& message, ADLogLevel level, bool containsPii)>;

  static void setLevel(ADLogLevel level);
  // Whether messages with personal data (names of users) are logged at all.
  static void setPiiEnabled(bool enabled);
  // Whether messages go to the system's log as well.
  static void setNSLogging(bool enabled);
  static void setLoggerCallback(Callback callback);

  static void log(ADLogLevel level, const QString& message, ADPii pii = ADPii::Absent);
};
