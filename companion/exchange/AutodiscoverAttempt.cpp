#include "companion/exchange/AutodiscoverAttempt.h"

#include <QPointer>
#include <utility>

#include "companion/network/WebAddress.h"
#include "host/KZUtility/KZTrace.h"

namespace {

// A query may hold a secret.
QString traceable(const QUrl& address) {
  return address.toString(QUrl::RemoveUserInfo | QUrl::RemoveQuery | QUrl::RemoveFragment);
}

}  // namespace

void AutodiscoverAttempt::start(Mode mode, const QUrl& address, Done done) {
  m_done = std::move(done);
  m_address = address;
  if (mode == Mode::Unauthorized) return visit(address);
  if (mode == Mode::Authorized) return isUsable(address) ? authorizedPost(address) : void();
  m_visited.insert(address);
  call({.address = address}, [this](const HttpResponse& response) { readProbe(response); });
}

void AutodiscoverAttempt::call(const HttpRequest& request, HttpCall::Done done) {
  m_call = std::make_unique<HttpCall>(m_context.configuration.network, request, std::move(done));
}

void AutodiscoverAttempt::readProbe(const HttpResponse& response) {
  // No failure of its own counts: most servers are not found this way.
  if (response.redirect.isEmpty()) return fail(FailureKind::HostUnknown);
  if (!isUsable(response.redirect)) return;
  ifAllowed(response.redirect, Question::Always, [this, target = response.redirect] { visit(target); });
}

bool AutodiscoverAttempt::isUsable(const QUrl& address) {
  if (!isSafeStep(m_address, address)) {
    fail(FailureKind::Unsafe);
    return false;
  }
  if (m_visited.contains(address) || m_visited.size() > kMostHops) {
    fail(FailureKind::TooManyRedirects);
    return false;
  }
  return true;
}

void AutodiscoverAttempt::ifAllowed(const QUrl& target, Question question,
                                    const std::function<void()>& next) {
  m_context.consent.ask(target, question, [this, target, next](bool isAllowed) {
    m_address = target;
    isAllowed ? next() : fail(FailureKind::Declined);
  });
}

void AutodiscoverAttempt::visit(const QUrl& address) {
  if (!isUsable(address)) return;
  if (!m_context.isOnline) {
    if (const auto online = m_context.configuration.onlineServiceOf(address.host())) return finish(*online);
  }
  ifAllowed(address, Question::UnlessTrusted, [this, address] { post(address, {}); });
}

void AutodiscoverAttempt::authorizedPost(const QUrl& address) {
  if (!m_context.consent.isTrusted(address.host())) return fail(FailureKind::Declined);
  const QPointer<AutodiscoverAttempt> self(this);
  const Authorization authorization = m_context.authorize();
  // The challenge runs through the plug-in's code, which may have ended this attempt.
  if (self == nullptr) return;
  if (authorization.header.isEmpty()) return fail(authorization.missing);
  post(address, authorization.header);
}

void AutodiscoverAttempt::post(const QUrl& address, const QByteArray& authorization) {
  MVRNSInfoFuncTraceIMPL("Exchange", Q_FUNC_INFO, "address:%@, isAuthorized:%d", traceable(address),
                         !authorization.isEmpty());
  m_address = address;
  m_visited.insert(address);
  call({.address = address, .body = autodiscoverRequest(m_email), .authorization = authorization},
       [this, isAuthorized = !authorization.isEmpty()](const HttpResponse& response) {
         read(response, isAuthorized);
       });
}

void AutodiscoverAttempt::read(const HttpResponse& response, bool isAuthorized) {
  if (response.failure.kind == FailureKind::NotFound) return fail(FailureKind::NoExchange);
  if (response.failure) return finish(response.failure);
  if (response.isChallenge) return readChallenge(response, isAuthorized);
  if (!response.redirect.isEmpty()) return visit(response.redirect);
  readBody(response.body);
}

void AutodiscoverAttempt::readChallenge(const HttpResponse& response, bool isAuthorized) {
  if (isAuthorized)
    return fail(m_context.isOnline ? FailureKind::TokenRefused : FailureKind::CredentialRefused);
  const QByteArray supported = m_context.isOnline ? "bearer" : "basic";
  if (!response.challengeSchemes.contains(supported)) return fail(FailureKind::UnsupportedSignIn);
  if (!m_context.authorize) return finish(CredentialNeeded());
  authorizedPost(m_address);
}

void AutodiscoverAttempt::readBody(const QByteArray& body) {
  const AutodiscoverResponse response = readAutodiscoverResponse(body);
  switch (response.kind) {
    case AutodiscoverResponse::Kind::Unreadable:
      return fail(FailureKind::BadResponse);
    case AutodiscoverResponse::Kind::Error:
      return response.errorText.isEmpty() ? fail(FailureKind::NoExchange)
                                          : fail(FailureKind::ServerMessage, response.errorText);
    case AutodiscoverResponse::Kind::OtherEmail:
      return finish(OtherEmail{response.otherEmail});
    case AutodiscoverResponse::Kind::OtherUrl:
      return visit(response.otherUrl);
    case AutodiscoverResponse::Kind::Services:
      return acceptServices(response.services);
  }
}

void AutodiscoverAttempt::acceptServices(const ExchangeServices& services) {
  // Meetings are requested from this address later, with the saved credential.
  const QUrl used = services.externalUrl.isEmpty() ? services.internalUrl : services.externalUrl;
  if (used.isEmpty()) return fail(FailureKind::BadResponse);
  if (!isSafeStep(m_address, used)) return fail(FailureKind::Unsafe);
  if (!m_context.isOnline) {
    if (const auto online = m_context.configuration.onlineServiceOf(used.host())) return finish(*online);
  }
  ifAllowed(used, Question::UnlessTrusted, [this, services] { finish(services); });
}

void AutodiscoverAttempt::fail(FailureKind kind, const QString& detail) {
  finish(NetworkFailure{.kind = kind, .host = m_address.host(), .detail = detail});
}

void AutodiscoverAttempt::finish(const AutodiscoverOutcome& outcome) {
  const QUrl address = m_address;
  const Done done = std::exchange(m_done, {});
  done(address, outcome);
}
