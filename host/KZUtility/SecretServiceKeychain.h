#pragma once

#include <chrono>
#include <memory>
#include <set>
#include <utility>

#include "host/KZUtility/KZKeychainBackend.h"

// The desktop's Secret Service. Every call runs on one worker thread and is cancelled when the service gives
// no answer for the deadline, which doubles each time that happens: a slow service is served in the end. Only
// `unlock` prompts, and a service that asks its user before it removes an item: after a no it is not asked
// again. Any thread.
class KZ_HOST_EXPORT SecretServiceKeychain final : public KZKeychainBackend {
 public:
  explicit SecretServiceKeychain(std::chrono::milliseconds deadline = std::chrono::seconds(1));
  // Waits for a call in progress, at most one deadline more.
  ~SecretServiceKeychain() override;

  [[nodiscard]] Answer read(const Item& item) override;
  [[nodiscard]] Status write(const Item& item, const QByteArray& secret) override;
  [[nodiscard]] Status remove(const Item& item) override;
  void unlock(const QList<Item>& items) override;

 private:
  class Worker;
  using Items = std::set<std::pair<QString, QString>>;

  // Those whose removal the user has refused. On the worker's thread.
  const std::shared_ptr<Items> m_refused = std::make_shared<Items>();
  const std::unique_ptr<Worker> m_worker;
};
