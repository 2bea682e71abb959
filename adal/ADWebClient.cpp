#include "adal/ADWebClient.h"

#include <QLocale>
#include <QTimeZone>
#include <utility>

#include "adal/ADAddress.h"
#include "adal/ADAuthenticationSettings.h"

namespace {

constexpr int mostRedirects = 5;

ADWebAnswer noWholeAnswer(ADErrorCode code, const char* details) {
  return {ADError{code, QString::fromLatin1(details)}, 0, {}, {}};
}

ADWebAnswer noWholeAnswer(ADHttpFailure failure) {
  switch (failure) {
    case ADHttpFailure::None:
    case ADHttpFailure::Unreachable:
      break;
    case ADHttpFailure::HostUnknown:
      return noWholeAnswer(ADErrorCode::Network, "unknown host");
    case ADHttpFailure::TooSlow:
      return noWholeAnswer(ADErrorCode::Network, "no answer in time");
    case ADHttpFailure::Encryption:
      return noWholeAnswer(ADErrorCode::Network, "no encryption in common");
    case ADHttpFailure::CertificateOfOtherName:
      return noWholeAnswer(ADErrorCode::Network, "certificate of another name");
    case ADHttpFailure::CertificateUntrusted:
      return noWholeAnswer(ADErrorCode::Network, "untrusted certificate");
    case ADHttpFailure::CertificateExpired:
      return noWholeAnswer(ADErrorCode::Network, "expired certificate");
    case ADHttpFailure::CertificateNotYetValid:
      return noWholeAnswer(ADErrorCode::Network, "certificate not valid yet");
    case ADHttpFailure::Malformed:
      return noWholeAnswer(ADErrorCode::ServerAnswer, "no HTTP");
    case ADHttpFailure::TooLong:
      return noWholeAnswer(ADErrorCode::ServerAnswer, "too long");
  }
  return noWholeAnswer(ADErrorCode::Network, "refused or broken connection");
}

QDateTime dateOf(const ADHttpResponse& response) {
  QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(response.header("Date")),
                                           QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
  date.setTimeZone(QTimeZone::utc());
  return date;
}

}  // namespace

void ADWebClient::get(const QUrl& address, Done done) {
  begin({.address = address}, std::move(done));
}

void ADWebClient::post(const QUrl& address, const ADParameters& form, Done done) {
  begin({.address = address,
         .body = encodedParameters(form),
         .headers = {{"Content-Type", "application/x-www-form-urlencoded"}}},
        std::move(done));
}

void ADWebClient::begin(const ADHttpRequest& request, Done done) {
  const ADRequestLimits limits = ADAuthenticationSettings::sharedInstance().limits();
  m_request = request;
  m_request.headers.emplaceBack("Accept", "application/json");
  m_request.responseBytes = limits.answerBytes;
  m_deadline = QDeadlineTimer(limits.transfer);
  m_redirectsLeft = mostRedirects;
  m_done = std::move(done);
  this->request();
}

void ADWebClient::request() {
  m_request.time = std::chrono::milliseconds(m_deadline.remainingTime());
  m_exchange =
      std::make_unique<ADHttpExchange>(m_request, [this](const ADHttpResponse& response) { read(response); });
}

void ADWebClient::read(const ADHttpResponse& response) {
  if (response.failure != ADHttpFailure::None) {
    settle(noWholeAnswer(response.failure));
    return;
  }
  const QByteArray location = response.header("Location");
  const bool isRedirect = response.status > 300 && response.status < 400 && !location.isEmpty();
  if (isRedirect && m_request.body.isEmpty()) {
    follow(location);
    return;
  }
  settle({{}, response.status, response.body, dateOf(response)});
}

void ADWebClient::follow(const QByteArray& location) {
  const QUrl address = m_request.address.resolved(QUrl::fromEncoded(location));
  if (!isAllowedAddress(address) || !isSameOrigin(address, m_request.address)) {
    settle(noWholeAnswer(ADErrorCode::ServerAnswer, "redirected elsewhere"));
    return;
  }
  if (m_redirectsLeft-- == 0) {
    settle(noWholeAnswer(ADErrorCode::ServerAnswer, "redirected too often"));
    return;
  }
  m_request.address = address;
  request();
}

void ADWebClient::settle(const ADWebAnswer& answer) {
  const Done done = std::exchange(m_done, {});
  done(answer);
}
