#include "companion/services/TokenRequest.h"

#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"

TokenRequest::TokenRequest(PluginHost* host, std::chrono::milliseconds patience) : m_host(host) {
  m_patience.setSingleShot(true);
  m_patience.setInterval(patience);
  connect(&m_patience, &QTimer::timeout, this, [this] {
    Q_EMIT failed(
        QStringLiteral("The sign-in of %1 was not renewed in time. Refresh, or detect the account again.")
            .arg(m_email));
  });
  host->handle(KZCommand::KZCmdExchOnlineTokenGot, this,
               [this](const Content& content) { takeToken(content.value_or(Dictionary())); });
}

void TokenRequest::ask(const Dictionary& exchange) {
  m_email = textValue(exchange, kKZCalendarIntegrationExchangeEmail);
  m_patience.start();
  m_host->trigger(
      KZCommand::KZCmdGetExchOnlineToken,
      Dictionary{{kKZCalendarIntegration, Dictionary{{kKZCalendarIntegrationExchange, exchange}}}});
}

void TokenRequest::cancel() {
  m_email.clear();
  m_patience.stop();
}

void TokenRequest::takeToken(const Dictionary& values) {
  if (m_email.isNull()) return;
  const Dictionary calendar = dictionaryValue(values, kKZCalendarIntegration);
  const Dictionary exchange = dictionaryValue(calendar, kKZCalendarIntegrationExchange);
  // The answer to an earlier question may come late.
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
