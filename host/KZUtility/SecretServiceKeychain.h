#pragma once

#include <chrono>
#include <memory>

#include "host/KZUtility/KZKeychainBackend.h"

// The desktop's Secret Service. Every call runs on one worker thread and is cancelled when the service gives
// no answer for the deadline, which doubles each time that happens: a slow service is served in the end. Only
// `unlock` prompts. Any thread.
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

  const std::unique_ptr<Worker> m_worker;
};
