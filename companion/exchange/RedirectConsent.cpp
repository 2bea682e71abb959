#include "companion/exchange/RedirectConsent.h"

#include <algorithm>
#include <utility>

#include "companion/network/WebAddress.h"

void RedirectConsent::trustOnly(const QStringList& domains) {
  m_domains = domains;
  m_allowed.clear();
  m_prompt = {};
}

bool RedirectConsent::isTrusted(const QString& host) const {
  return m_allowed.contains(host) ||
         std::any_of(m_domains.begin(), m_domains.end(),
                     [&host](const QString& domain) { return isWithinDomain(host, domain); });
}

void RedirectConsent::ask(const QUrl& target, Question question, Answer answer) {
  const QString host = target.host();
  const bool isAllowed = question == Question::Always ? m_allowed.contains(host) : isTrusted(host);
  if (isAllowed) return answer(true);
  if (!m_prompt.ask || m_declined.contains(host)) return answer(false);
  m_pending.append({target, std::move(answer)});
  if (m_open == nullptr) openNext();
}

void RedirectConsent::dropQuestions() {
  m_pending.clear();
  const bool isOpen = std::exchange(m_open, nullptr) != nullptr;
  if (isOpen && m_prompt.withdraw) m_prompt.withdraw();
}

void RedirectConsent::openNext() {
  if (m_pending.isEmpty()) return;
  const QUrl target = m_pending.first().target;
  m_open = std::make_shared<const char>();
  if (m_allowed.contains(target.host()) || m_declined.contains(target.host())) {
    return settle(m_allowed.contains(target.host()));
  }
  m_prompt.ask(target, [this, open = std::weak_ptr(m_open)](bool isAllowed) {
    if (!open.expired()) settle(isAllowed);
  });
}

void RedirectConsent::settle(bool isAllowed) {
  m_open.reset();
  const Pending pending = m_pending.takeFirst();
  (isAllowed ? m_allowed : m_declined).insert(pending.target.host());
  pending.answer(isAllowed);
  if (m_open == nullptr) openNext();
}
