#include "host/KZFoundation/KZNotificationCenter.h"

#include <QMutexLocker>

KZNotificationCenter& KZNotificationCenter::defaultCenter() {
  static KZNotificationCenter center;
  return center;
}

KZNotificationCenter::Token KZNotificationCenter::addObserver(const QString& name, Handler handler) {
  auto token = std::make_shared<const Handler>(std::move(handler));
  const QMutexLocker lock(&m_mutex);
  std::erase_if(m_observers, [](const Observer& observer) { return observer.handler.expired(); });
  m_observers.push_back({.name = name, .handler = token});
  return token;
}

void KZNotificationCenter::post(const KZNotification& notification) {
  // Handlers run unlocked: they may post, observe, or end their registration themselves.
  std::vector<Token> handlers;
  {
    const QMutexLocker lock(&m_mutex);
    for (const Observer& observer : m_observers) {
      if (observer.name != notification.name) continue;
      if (Token handler = observer.handler.lock()) handlers.push_back(std::move(handler));
    }
  }
  for (const Token& handler : handlers) (*handler)(notification);
}
