#include "companion/exchange/AutodiscoverAttempt.h"

#include <utility>

#include "companion/exchange/HttpFailure.h"
#include "host/KZUtility/KZTrace.h"

namespace {

using Outcome = AutodiscoverOutcome;

bool isRedirect(const HttpAnswer& answer) {
  const bool isMoved = answer.status == 301 || answer.status == 302 || answer.status == 303 ||
                       answer.status == 307 || answer.status == 308;
  return isMoved && answer.location.isValid();
}

// A query may hold something that opens a door.
QString traceable(const QUrl& address) {
  return address.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment);
}

}  // namespace

void AutodiscoverAttempt::stop() {
  m_done = {};
  m_call.reset();
  m_context.consent.forget(this);
}

void AutodiscoverAttempt::askAuthorized(const QUrl& address) {
  m_address = address;
  if (isFit(address)) authorizedPost(address);
}

void AutodiscoverAttempt::probe(const QUrl& address) {
  m_address = address;
  m_visited.insert(address);
  m_call = std::make_unique<HttpCall>(m_context.network, m_context.configuration.network);
  m_call->start({.address = address}, [this](const HttpAnswer& answer) { readProbe(answer); });
}

void AutodiscoverAttempt::readProbe(const HttpAnswer& answer) {
  // That nothing is there tells nothing: most servers are not found this way.
  if (answer.trouble != HttpAnswer::Trouble::None || !isRedirect(answer)) return fail(Kind::HostUnknown);
  if (!isFit(answer.location)) return;
  m_context.consent.ask(answer.location, RedirectConsent::Question::Always, this,
                        [this, address = answer.location](bool isAllowed) {
                          if (isAllowed) return visit(address);
                          m_address = address;
                          fail(Kind::Declined);
                        });
}

bool AutodiscoverAttempt::isFit(const QUrl& address) {
  const bool isSecure = address.isValid() && address.scheme() == QLatin1String("https") &&
                        !address.host().isEmpty() && address.userInfo().isEmpty();
  if (!isSecure) {
    fail(Kind::Unencrypted);
    return false;
  }
  if (m_visited.contains(address) || m_visited.size() > m_context.configuration.limits.hops) {
    fail(Kind::TooManyRedirects);
    return false;
  }
  return true;
}

void AutodiscoverAttempt::visit(const QUrl& address) {
  if (m_visited.isEmpty()) m_address = address;
  if (!isFit(address)) return;
  if (!m_context.isOnline) {
    const auto online = onlineServiceOf(m_context.configuration.onlineServices, address.host());
    if (online) return finish({.kind = Outcome::Kind::Online, .online = online});
  }
  m_context.consent.ask(address, RedirectConsent::Question::UnlessTrusted, this,
                        [this, address](bool isAllowed) {
                          m_address = address;
                          if (!isAllowed) return fail(Kind::Declined);
                          post(address, {});
                        });
}

void AutodiscoverAttempt::authorizedPost(const QUrl& address) {
  if (!m_context.consent.isTrusted(address.host())) return fail(Kind::Declined);
  const Authorization authorization = m_context.authorize();
  // The challenge runs through others' code, which may have ended all this.
  if (!m_done) return;
  if (authorization.header.isEmpty()) return fail(authorization.missing);
  post(address, authorization.header);
}

void AutodiscoverAttempt::post(const QUrl& address, const QByteArray& authorization) {
  MVRNSInfoFuncTraceIMPL("Exchange", Q_FUNC_INFO, "address:%@, isAuthorized:%d", traceable(address),
                         !authorization.isEmpty());
  m_address = address;
  m_visited.insert(address);
  m_call = std::make_unique<HttpCall>(m_context.network, m_context.configuration.network);
  m_call->start({.address = address, .body = autodiscoverRequest(m_email), .authorization = authorization},
                [this, isAuthorized = !authorization.isEmpty()](const HttpAnswer& answer) {
                  read(answer, isAuthorized);
                });
}

void AutodiscoverAttempt::read(const HttpAnswer& answer, bool isAuthorized) {
  if (answer.trouble != HttpAnswer::Trouble::None) return fail(failureOf(answer));
  if (answer.status == 401) return readChallenge(answer, isAuthorized);
  if (isRedirect(answer)) return visit(answer.location);
  if (answer.status != 200) return fail(failureOf(answer));
  readBody(answer.body);
}

void AutodiscoverAttempt::readChallenge(const HttpAnswer& answer, bool isAuthorized) {
  if (isAuthorized) return finish({.kind = Outcome::Kind::Refused});
  const QByteArray supported = m_context.isOnline ? "bearer" : "basic";
  if (!offeredSchemes(answer.challenge).contains(supported)) return fail(Kind::UnsupportedSignIn);
  if (!m_context.authorize) return finish({.kind = Outcome::Kind::Challenge});
  authorizedPost(m_address);
}

void AutodiscoverAttempt::readBody(const QByteArray& body) {
  const AutodiscoverAnswer answer = readAutodiscoverAnswer(body);
  switch (answer.kind) {
    case AutodiscoverAnswer::Kind::Unreadable:
      return fail(Kind::BadAnswer);
    case AutodiscoverAnswer::Kind::Error:
      return answer.errorText.isEmpty() ? fail(Kind::NotFound) : fail(Kind::ServerSays, answer.errorText);
    case AutodiscoverAnswer::Kind::OtherEmail:
      return finish({.kind = Outcome::Kind::OtherEmail, .otherEmail = answer.otherEmail});
    case AutodiscoverAnswer::Kind::OtherUrl:
      return visit(answer.otherUrl);
    case AutodiscoverAnswer::Kind::Services:
      return acceptServices(answer.services);
  }
}

void AutodiscoverAttempt::acceptServices(const ExchangeServices& services) {
  // Meetings are asked for here, later and with the saved credential.
  const QUrl used = services.externalUrl.isEmpty() ? services.internalUrl : services.externalUrl;
  if (used.isEmpty()) return fail(Kind::BadAnswer);
  const auto online = onlineServiceOf(m_context.configuration.onlineServices, used.host());
  if (online && !m_context.isOnline) return finish({.kind = Outcome::Kind::Online, .online = online});
  m_context.consent.ask(used, RedirectConsent::Question::UnlessTrusted, this,
                        [this, services, used](bool isAllowed) {
                          if (isAllowed)
                            return finish({.kind = Outcome::Kind::Services, .services = services});
                          m_address = used;
                          fail(Kind::Declined);
                        });
}

void AutodiscoverAttempt::fail(Kind kind, const QString& serverText) {
  finish({.failure = {.kind = kind, .host = m_address.host(), .serverText = serverText}});
}

void AutodiscoverAttempt::finish(AutodiscoverOutcome outcome) {
  outcome.address = m_address;
  const Done done = std::exchange(m_done, {});
  m_call.reset();
  if (done) done(outcome);
}
