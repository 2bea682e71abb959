#pragma once

#include <QList>
#include <utility>

#include "adal/ADAuthenticationResult.h"

// The completions that wait for one result.
class ADCompletions final {
 public:
  // Called with the result, unless `owner` leaves before.
  void join(const void* owner, ADAuthenticationCallback completion) {
    m_waiting.append({owner, std::move(completion)});
  }
  void leave(const void* owner) {
    m_waiting.removeIf([owner](const auto& waiting) { return waiting.first == owner; });
  }
  // A completion may let others leave.
  void call(const ADAuthenticationResult& result) {
    while (!m_waiting.isEmpty()) m_waiting.takeFirst().second(result);
  }

  bool isEmpty() const { return m_waiting.isEmpty(); }

 private:
  QList<std::pair<const void*, ADAuthenticationCallback>> m_waiting;
};
