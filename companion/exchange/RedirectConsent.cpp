#include "companion/exchange/RedirectConsent.h"

#include <algorithm>
#include <utility>

#include "companion/network/WebAddress.h"

RedirectConsent::~RedirectConsent() {
  m_pending.clear();
  if (m_open != 0 && m_prompt.withdraw) m_prompt.withdraw();
}

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

void RedirectConsent::ask(const QUrl& target, Question question, QObject* context, Answer answer) {
  const QString host = target.host();
  const bool isAllowed = question == Question::Always ? m_allowed.contains(host) : isTrusted(host);
  if (isAllowed) return answer(true);
  if (!m_prompt.ask || m_declined.contains(host)) return answer(false);
  m_pending.append({target, context, std::move(answer)});
  if (m_open == 0) openNext();
}

void RedirectConsent::forget(const QObject* context) {
  if (m_pending.isEmpty()) return;
  const bool isOpenOne = m_open != 0 && m_pending.first().context == context;
  m_pending.removeIf([context](const Pending& pending) { return pending.context == context; });
  if (!isOpenOne) return;
  m_open = 0;
  if (m_prompt.withdraw) m_prompt.withdraw();
  openNext();
}

void RedirectConsent::openNext() {
  if (m_pending.isEmpty()) return;
  const QString host = m_pending.first().target.host();
  m_open = ++m_lastNumber;
  if (m_allowed.contains(host) || m_declined.contains(host)) return settle(m_allowed.contains(host));
  m_prompt.ask(m_pending.first().target,
               [consent = QPointer<RedirectConsent>(this), number = m_open](bool isAllowed) {
                 if (consent != nullptr && consent->m_open == number) consent->settle(isAllowed);
               });
}

void RedirectConsent::settle(bool isAllowed) {
  m_open = 0;
  const Pending pending = m_pending.takeFirst();
  (isAllowed ? m_allowed : m_declined).insert(pending.target.host());
  const QPointer<RedirectConsent> self(this);
  if (pending.context != nullptr) pending.answer(isAllowed);
  if (self != nullptr && m_open == 0) openNext();
}
