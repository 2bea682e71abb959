#pragma once

#include <chrono>
#include <memory>

#include "host/KZUtility/KZKeychainBackend.h"

// The desktop's Secret Service. Every call runs on one worker thread and is cancelled at the deadline. It
// never prompts: a locked or missing default collection is unavailable. Any thread.
class KZ_HOST_EXPORT SecretServiceKeychain final : public KZKeychainBackend {
 public:
  explicit SecretServiceKeychain(std::chrono::milliseconds deadline = std::chrono::seconds(1));
  // Waits for a call in progress, at most one deadline more.
  ~SecretServiceKeychain() override;

  [[nodiscard]] Answer read(const Item& item) override;
  [[nodiscard]] Status write(const Item& item, const QByteArray& secret) override;
  [[nodiscard]] Status remove(const Item& item) override;

 private:
  class Worker;

  const std::unique_ptr<Worker> m_worker;
};
