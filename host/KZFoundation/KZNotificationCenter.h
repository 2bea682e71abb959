#pragma once

#include <QMutex>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZHostExport.h"

struct KZNotification {
  QString name;
  const void* object = nullptr;  // the object that posted it; only compared, never used
  Dictionary userInfo;
};

// Process-wide notifications. Any thread may post; observers run on the posting thread, before `post`
// returns.
class KZ_HOST_EXPORT KZNotificationCenter {
 public:
  using Handler = std::function<void(const KZNotification&)>;
  // The registration ends when the last copy of its token is destroyed.
  using Token = std::shared_ptr<const Handler>;

  static KZNotificationCenter& defaultCenter();

  [[nodiscard]] Token addObserver(const QString& name, Handler handler);
  void post(const KZNotification& notification);

 private:
  struct Observer {
    QString name;
    std::weak_ptr<const Handler> handler;
  };

  QMutex m_mutex;
  std::vector<Observer> m_observers;
};
