#pragma once

#include <QString>
#include <functional>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "host/KZUtility/KZTrace.h"

class QUrl;

// Hears what the plug-in does besides sending commands: process-wide notifications, addresses to open,
// warnings and traces. One at a time; the host's own behaviour returns when it goes.
class BorderWatch final {
 public:
  struct Handlers {
    std::function<void(const KZNotification&)> challenged;  // a host wants a credential; on its thread
    std::function<void(const KZNotification&)> answered;    // somebody gave one; on the posting thread
    std::function<bool(const QUrl&)> opened;                // empty: the desktop opens them
    std::function<void(const QString& title, const QString& message)> warned;
    KZTraceSink traced;  // on the tracing thread; empty: standard error
  };

  explicit BorderWatch(Handlers handlers);
  ~BorderWatch();
  Q_DISABLE_COPY_MOVE(BorderWatch)

 private:
  KZNotificationCenter::Token m_challenges;
  KZNotificationCenter::Token m_answers;
};
