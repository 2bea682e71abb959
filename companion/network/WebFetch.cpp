#include "companion/network/WebFetch.h"

#include <utility>

#include "companion/network/WebAddress.h"

namespace {

constexpr qsizetype kMostRedirects = 10;

}  // namespace

void WebFetch::start(const QUrl& address, Done done) {
  m_visited.clear();
  m_address = address;
  m_done = std::move(done);
  m_call = std::make_unique<HttpCall>(m_network, m_configuration);
  // What fails at once is also reported later.
  QMetaObject::invokeMethod(
      m_call.get(), [this, address] { request(address); }, Qt::QueuedConnection);
}

void WebFetch::request(const QUrl& address) {
  if (!isSafeStep(m_address, address)) return fail(FailureKind::Unsafe);
  m_address = address;
  if (m_visited.contains(address) || m_visited.size() > kMostRedirects) {
    return fail(FailureKind::TooManyRedirects);
  }
  m_visited.insert(address);
  m_call = std::make_unique<HttpCall>(m_network, m_configuration);
  m_call->start({.address = address}, [this](const HttpResponse& response) { read(response); });
}

void WebFetch::read(const HttpResponse& response) {
  if (response.failure) return settle({.failure = response.failure});
  if (response.isChallenge) return fail(FailureKind::Forbidden);
  if (!response.redirect.isEmpty()) return request(response.redirect);
  settle({.body = response.body});
}

void WebFetch::settle(WebPage page) {
  page.address = m_address;
  const Done done = std::exchange(m_done, {});
  m_call.reset();
  if (done) done(page);
}
