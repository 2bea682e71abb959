#include "companion/exchange/ExchangeMeetings.h"

#include "companion/exchange/CredentialChallenge.h"
#include "companion/network/WebAddress.h"
#include "host/KZFoundation/KZConstants.h"

QUrl meetingAddress(const Dictionary& exchange) {
  for (const QString& key :
       {kKZCalendarIntegrationExchangeExternalUrl, kKZCalendarIntegrationExchangeInternalUrl}) {
    const QUrl address(textValue(exchange, key), QUrl::StrictMode);
    if (isSafeAddress(address)) return address;
  }
  return {};
}

void ExchangeMeetings::list(const Dictionary& exchange, const QString& token, int days) {
  m_address = meetingAddress(exchange);
  m_days = days;
  m_isOnline = isSet(exchange, kKZCalendarIntegrationIsOnline);
  if (m_address.isEmpty()) {
    return Q_EMIT failed(QStringLiteral("No Exchange account is applied. Detect one first."));
  }
  if (!m_isOnline) return request({});
  token.isEmpty() ? fail(FailureKind::TokenRefused) : request("Bearer " + token.toUtf8());
}

void ExchangeMeetings::request(const QByteArray& authorization) {
  const QDateTime now = QDateTime::currentDateTimeUtc();
  m_call = std::make_unique<HttpCall>(m_network, m_configuration.network);
  m_call->start({.address = m_address,
                 .body = meetingRequest(now, now.addDays(m_days)),
                 .authorization = authorization},
                [this, isAuthorized = !authorization.isEmpty()](const HttpResponse& response) {
                  read(response, isAuthorized);
                });
}

void ExchangeMeetings::read(const HttpResponse& response, bool isAuthorized) {
  if (response.failure) return Q_EMIT failed(response.failure.message());
  if (response.isChallenge) return readChallenge(response, isAuthorized);
  const auto meetings = readMeetings(response.body);
  meetings ? Q_EMIT listed(*meetings) : fail(FailureKind::BadResponse);
}

void ExchangeMeetings::readChallenge(const HttpResponse& response, bool isAuthorized) {
  if (m_isOnline) return fail(FailureKind::TokenRefused);
  if (isAuthorized) {
    fail(FailureKind::CredentialRefused);
    return reportRefusedCredential(CredentialPurpose::MeetingListing);
  }
  response.challengeSchemes.contains("basic") ? requestWithSavedCredential()
                                              : fail(FailureKind::UnsupportedSignIn);
}

void ExchangeMeetings::requestWithSavedCredential() {
  const OfferedCredential saved = askForCredential(CredentialPurpose::MeetingListing);
  if (saved.isEmpty()) return fail(FailureKind::NoCredential);
  const QByteArray authorization = basicAuthorization(saved);
  authorization.isEmpty() ? fail(FailureKind::BadUsername) : request(authorization);
}

void ExchangeMeetings::fail(FailureKind kind) {
  Q_EMIT failed(NetworkFailure{.kind = kind, .host = m_address.host()}.message());
}
