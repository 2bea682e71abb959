#include "companion/network/WebFetch.h"

#include <utility>

#include "companion/network/WebAddress.h"

namespace {

constexpr qsizetype kHops = 10;

}  // namespace

WebFetch::WebFetch(NetworkConfiguration configuration, Refusal refusal)
    : m_configuration(std::move(configuration)), m_refusal(std::move(refusal)) {}

WebFetch::~WebFetch() = default;

void WebFetch::start(const HttpQuestion& question, Done done) {
  cancel();
  m_question = question;
  m_done = std::move(done);
  m_call = std::make_unique<HttpCall>(m_network, m_configuration);
  // Also what fails at once is told later, like everything else.
  QMetaObject::invokeMethod(
      m_call.get(), [this, address = question.address] { ask(address); }, Qt::QueuedConnection);
}

void WebFetch::cancel() {
  m_call.reset();
  m_done = {};
  m_visited.clear();
}

void WebFetch::ask(const QUrl& address) {
  const QUrl before = std::exchange(m_question.address, address);
  if (!isSafeStep(before, address)) {
    m_question.address = before;
    return fail(WebTrouble::Unsafe);
  }
  const QString refusal = m_refusal ? m_refusal(address) : QString();
  if (!refusal.isEmpty()) return settle({.failure = refusal, .address = address});
  if (m_visited.contains(address) || m_visited.size() > kHops) return fail(WebTrouble::TooManyRedirects);
  m_visited.insert(address);
  m_call = std::make_unique<HttpCall>(m_network, m_configuration);
  m_call->start(m_question, [this](const HttpAnswer& answer) { read(answer); });
}

void WebFetch::read(const HttpAnswer& answer) {
  const WebTrouble trouble = webTroubleOf(answer);
  if (trouble != WebTrouble::None) return fail(trouble);
  if (answer.status != 200) return ask(answer.location);
  settle({.address = m_question.address, .body = answer.body});
}

void WebFetch::fail(WebTrouble trouble) {
  settle({.failure = messageOf(trouble, m_question.address.host()), .address = m_question.address});
}

void WebFetch::settle(const WebAnswer& answer) {
  const Done done = std::exchange(m_done, {});
  cancel();
  if (done) done(answer);
}
