#include "companion/services/TokenRequest.h"

#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"

TokenRequest::TokenRequest(PluginHost* host, std::chrono::milliseconds timeLimit) : m_host(host) {
  m_deadline.setSingleShot(true);
  m_deadline.setInterval(timeLimit);
  connect(&m_deadline, &QTimer::timeout, this, [this] {
    Q_EMIT failed(
        QStringLiteral("The sign-in of %1 was not renewed in time. Refresh, or detect the account again.")
            .arg(m_email));
  });
  host->handle(KZCommand::KZCmdExchOnlineTokenGot, this,
               [this](const Content& content) { takeToken(content.value_or(Dictionary())); });
}

void TokenRequest::ask(const Dictionary& exchange) {
  m_email = textValue(exchange, kKZCalendarIntegrationExchangeEmail);
  m_deadline.start();
  m_host->trigger(
      KZCommand::KZCmdGetExchOnlineToken,
      Dictionary{{kKZCalendarIntegration, Dictionary{{kKZCalendarIntegrationExchange, exchange}}}});
}

void TokenRequest::cancel() {
  m_email.clear();
  m_deadline.stop();
}

void TokenRequest::takeToken(const Dictionary& values) {
  if (m_email.isNull()) return;
  const Dictionary calendar = dictionaryValue(values, kKZCalendarIntegration);
  const Dictionary exchange = dictionaryValue(calendar, kKZCalendarIntegrationExchange);
  // The response to an earlier request may come late.
  if (!isEqualText(textValue(exchange, kKZCalendarIntegrationExchangeEmail), m_email)) return;
  if (isSet(values, QStringLiteral("GetTokenFailed"))) {
    return fail(QStringLiteral("The sign-in of %1 could not be renewed. Detect the account again to sign in.")
                    .arg(m_email));
  }
  if (isSet(values, QStringLiteral("isTokenExpired"))) return;
  const QString token = textValue(values, QRT_ListingMeeting_exchOnlineToken);
  if (token.isEmpty()) {
    return fail(
        QStringLiteral("Nobody is signed in as %1. Detect the account again to sign in.").arg(m_email));
  }
  cancel();
  Q_EMIT got(token);
}

void TokenRequest::fail(const QString& reason) {
  cancel();
  Q_EMIT failed(reason);
}
