#include "companion/exchange/ExchangeMeetings.h"

#include "companion/exchange/CredentialChallenge.h"
#include "companion/exchange/HttpFailure.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

// Where the meetings are; empty where the account has no address that a credential may be sent to.
QUrl meetingUrl(const Dictionary& exchange) {
  for (const QString& key :
       {kKZCalendarIntegrationExchangeExternalUrl, kKZCalendarIntegrationExchangeInternalUrl}) {
    const QUrl url(textValue(exchange, key), QUrl::StrictMode);
    const bool isSafe =
        url.scheme() == QLatin1String("https") && !url.host().isEmpty() && url.userInfo().isEmpty();
    if (isSafe) return url;
  }
  return {};
}

}  // namespace

void ExchangeMeetings::list(const Dictionary& exchange, const QString& token, int days) {
  cancel();
  m_address = meetingUrl(exchange);
  m_days = days;
  m_isOnline = isSet(exchange, kKZCalendarIntegrationIsOnline);
  if (m_address.isEmpty()) return fail(QStringLiteral("No Exchange account is applied. Detect one first."));
  if (!m_isOnline) return ask({});
  if (token.isEmpty()) return fail(QStringLiteral("Nobody is signed in to %1. Detect the account again."));
  ask("Bearer " + token.toUtf8());
}

void ExchangeMeetings::ask(const QByteArray& authorization) {
  const QDateTime now = QDateTime::currentDateTimeUtc();
  m_call = std::make_unique<HttpCall>(m_network, m_configuration.network);
  m_call->start({.address = m_address,
                 .body = meetingRequest(now, now.addDays(m_days)),
                 .authorization = authorization},
                [this, isAuthorized = !authorization.isEmpty()](const HttpAnswer& answer) {
                  read(answer, isAuthorized);
                });
}

void ExchangeMeetings::read(const HttpAnswer& answer, bool isAuthorized) {
  if (answer.trouble == HttpAnswer::Trouble::None && answer.status == 401) {
    return readChallenge(answer, isAuthorized);
  }
  if (answer.trouble != HttpAnswer::Trouble::None || answer.status != 200) {
    return fail(messageOf({.kind = failureOf(answer), .host = m_address.host()}));
  }
  const auto meetings = readMeetings(answer.body);
  if (!meetings) return fail(QStringLiteral("%1 gave no usable list of meetings. Try again later."));
  Q_EMIT listed(*meetings);
}

void ExchangeMeetings::readChallenge(const HttpAnswer& answer, bool isAuthorized) {
  const QString host = m_address.host();
  if (m_isOnline) return fail(messageOf({.kind = DiscoveryFailureKind::TokenRefused, .host = host}));
  if (isAuthorized) {
    fail(QStringLiteral("%1 refused the saved user name or password. Detect the account again."));
    return reportRefusedCredential(CredentialPurpose::MeetingListing);
  }
  if (!offeredSchemes(answer.challenge).contains("basic")) {
    return fail(messageOf({.kind = DiscoveryFailureKind::UnsupportedSignIn, .host = host}));
  }
  askWithSavedCredential();
}

void ExchangeMeetings::askWithSavedCredential() {
  const OfferedCredential saved = askForCredential(CredentialPurpose::MeetingListing);
  if (saved.isEmpty()) return fail(QStringLiteral("No password is saved for %1. Detect the account again."));
  const QByteArray authorization = basicAuthorization(saved);
  if (authorization.isEmpty()) {
    return fail(messageOf({.kind = DiscoveryFailureKind::BadUsername, .host = m_address.host()}));
  }
  ask(authorization);
}

void ExchangeMeetings::fail(const QString& pattern) {
  Q_EMIT failed(pattern.contains(QLatin1String("%1")) ? pattern.arg(m_address.host()) : pattern);
}
