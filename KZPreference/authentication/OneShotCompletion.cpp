#include "KZPreference/authentication/OneShotCompletion.h"

#include <QObject>
#include <QPointer>
#include <atomic>
#include <memory>
#include <utility>

#include "host/KZUtility/KZTrace.h"

ADAuthenticationCallback oneShotCompletion(QObject* home, const char* method,
                                           ADAuthenticationCallback deliver) {
  const auto fBlockHit = std::make_shared<std::atomic_bool>(false);
  return [fBlockHit, method, home = QPointer(home),
          deliver = std::move(deliver)](const ADAuthenticationResult& result) {
    if (fBlockHit->exchange(true)) {
      MVRNSErrorFuncTraceIMPL("KZPreference", method, "fBlockHit is YES");
      return;
    }
    if (home == nullptr) return;
    QMetaObject::invokeMethod(
        home, [deliver, result] { deliver(result); }, Qt::QueuedConnection);
  };
}
