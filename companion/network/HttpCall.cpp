#include "companion/network/HttpCall.h"

#include <QRegularExpression>
#include <utility>

#include "companion/network/WebAddress.h"

namespace {

constexpr qsizetype kMostRedirects = 10;

QList<QByteArray> schemesOf(const QByteArray& challenge) {
  static const QRegularExpression quoted(QStringLiteral("\"(?:[^\"\\\\]|\\\\.)*\""));
  QString plain = QString::fromLatin1(challenge);
  plain.remove(quoted);
  QList<QByteArray> schemes;
  for (const QString& part : plain.split(QLatin1Char(','))) {
    const QString word = part.simplified().section(QLatin1Char(' '), 0, 0).toLower();
    if (!word.isEmpty() && !word.contains(QLatin1Char('='))) schemes.append(word.toLatin1());
  }
  return schemes;
}

FailureKind failureOfStatus(int status) {
  if (status == 200) return FailureKind::None;
  if (status == 401 || status == 403) return FailureKind::Forbidden;
  return status >= 500 ? FailureKind::ServerError : FailureKind::NotFound;
}

FailureKind failureOfExchange(ADHttpFailure failure) {
  switch (failure) {
    case ADHttpFailure::None:
      return FailureKind::None;
    case ADHttpFailure::HostUnknown:
      return FailureKind::HostUnknown;
    case ADHttpFailure::Unreachable:
      return FailureKind::Unreachable;
    case ADHttpFailure::TooSlow:
      return FailureKind::TooSlow;
    case ADHttpFailure::Malformed:
    case ADHttpFailure::TooLong:
      return FailureKind::BadResponse;
    case ADHttpFailure::Encryption:
      return FailureKind::Encryption;
    case ADHttpFailure::CertificateOfOtherName:
      return FailureKind::CertificateOfOtherName;
    case ADHttpFailure::CertificateUntrusted:
      return FailureKind::Certificate;
    case ADHttpFailure::CertificateExpired:
      return FailureKind::CertificateExpired;
    case ADHttpFailure::CertificateNotYetValid:
      return FailureKind::CertificateNotYetValid;
  }
  return FailureKind::Unreachable;
}

}  // namespace

HttpCall::HttpCall(const NetworkConfiguration& configuration, const HttpRequest& request, Done done)
    : m_configuration(configuration), m_request(request), m_done(std::move(done)) {
  const auto begin = [this] {
    m_request.redirects == Redirects::Follow ? follow(m_request.address) : this->request();
  };
  QMetaObject::invokeMethod(this, begin, Qt::QueuedConnection);
}

void HttpCall::follow(const QUrl& address) {
  if (!isSafeStep(m_request.address, address)) return fail(FailureKind::Unsafe);
  m_request.address = address;
  if (m_visited.contains(address) || m_visited.size() > kMostRedirects) {
    return fail(FailureKind::TooManyRedirects);
  }
  m_visited.insert(address);
  request();
}

void HttpCall::request() {
  const auto& refusal = m_configuration.refusal;
  const QString reason = refusal ? refusal(m_request.address) : QString();
  if (!reason.isEmpty()) return settle({.failure = {.kind = FailureKind::Explained, .detail = reason}});
  m_exchange = std::make_unique<ADHttpExchange>(
      httpRequest(), [this](const ADHttpResponse& response) { settle(read(response)); });
}

ADHttpRequest HttpCall::httpRequest() const {
  ADHttpRequest result{.address = m_request.address,
                       .body = m_request.body,
                       .time = m_configuration.limits.request,
                       .responseBytes = m_configuration.limits.responseBytes};
  if (!m_request.body.isEmpty()) result.headers.emplaceBack("Content-Type", "text/xml; charset=utf-8");
  if (!m_request.authorization.isEmpty())
    result.headers.emplaceBack("Authorization", m_request.authorization);
  if (m_configuration.endpoint) result.peer = m_configuration.endpoint(m_request.address);
  return result;
}

HttpResponse HttpCall::read(const ADHttpResponse& response) const {
  if (response.failure != ADHttpFailure::None) return failed(failureOfExchange(response.failure));
  if (response.status == 401 && m_request.redirects == Redirects::Report) {
    return {.isChallenge = true, .challengeSchemes = schemesOf(response.header("WWW-Authenticate"))};
  }
  const QUrl location = QUrl::fromEncoded(response.header("Location"));
  const bool isRedirect = response.status >= 300 && response.status < 400;
  if (isRedirect && location.isValid()) return {.redirect = m_request.address.resolved(location)};
  const FailureKind kind = failureOfStatus(response.status);
  return kind == FailureKind::None ? HttpResponse{.body = response.body} : failed(kind);
}

HttpResponse HttpCall::failed(FailureKind kind) const {
  return {.failure = {.kind = kind, .host = m_request.address.host()}};
}

void HttpCall::settle(HttpResponse response) {
  const bool isFollowed = m_request.redirects == Redirects::Follow && !response.redirect.isEmpty();
  if (isFollowed) return follow(response.redirect);
  response.address = m_request.address;
  const Done done = std::exchange(m_done, {});
  if (done) done(response);
}
