#include "companion/exchange/ExchangeDiscovery.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <utility>

#include "companion/exchange/CredentialChallenge.h"
#include "companion/exchange/DiscoveryRun.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"

ExchangeDiscovery::ExchangeDiscovery(ExchangeConfiguration configuration)
    : m_configuration(std::move(configuration)) {}

ExchangeDiscovery::~ExchangeDiscovery() {
  dropRun();
}

void ExchangeDiscovery::start(const Dictionary& content) {
  dropRun();
  m_email = textValue(content, QRT_ExchangeDiscover_Email).trimmed();
  m_run = new DiscoveryRun(m_configuration, m_email);
  m_run->setParent(this);
  connect(m_run, &DiscoveryRun::credentialNeeded, this, &ExchangeDiscovery::askForPassword);
  connect(m_run, &DiscoveryRun::tokenNeeded, this, &ExchangeDiscovery::askForSignIn);
  connect(m_run, &DiscoveryRun::found, this, &ExchangeDiscovery::reportFound);
  connect(m_run, &DiscoveryRun::failed, this, &ExchangeDiscovery::fail);
  connect(m_run, &DiscoveryRun::progressed, this, &ExchangeDiscovery::message);
  // The command returns before its answer comes.
  QMetaObject::invokeMethod(m_run, &DiscoveryRun::start, Qt::QueuedConnection);
}

void ExchangeDiscovery::cancel() {
  if (m_run == nullptr) return;
  dropRun();
  Q_EMIT message(QStringLiteral("The search for an Exchange service was given up."));
}

void ExchangeDiscovery::sinkCredential(const Dictionary& content) {
  const QString type = textValue(content, QRT_CredentialType);
  const bool isPassword = type == QRT_CredentialTypeUsernamePassword;
  if (m_run != nullptr && isPassword && m_run->isAwaitingCredential()) return m_run->goOnWithCredential();
  if (m_run != nullptr && type == QRT_CredentialTypeOAuthToken && m_run->isAwaitingToken()) {
    return m_run->goOnWithToken(textValue(content, QRT_CredentialUsername),
                                textValue(content, QRT_CredentialContent));
  }
  MVRNSWarningFuncTraceIMPL("Exchange", Q_FUNC_INFO, "no discovery waits for a credential of type %@", type);
}

void ExchangeDiscovery::notifyAuthFailure() {
  // The refusal has ended the discovery already; one that runs by now is another.
  Q_EMIT message(QStringLiteral("Detect again to enter another user name or password."));
}

void ExchangeDiscovery::askForPassword() {
  Q_EMIT notified(KZNotify::KZNotifyExchangeResolvingNeedCredential,
                  {{kKZResult, kKZSuccess},
                   {QRT_ExchangeDiscover_ExchangeType, QRT_ExchangeDiscover_ExchangeTypeOnpremise}});
}

void ExchangeDiscovery::askForSignIn(const OnlineService& service, const QString& email) {
  const QJsonObject parameters = {{QStringLiteral("authority"), service.authority},
                                  {QStringLiteral("resource"), service.resource},
                                  {QStringLiteral("clientId"), service.clientId},
                                  {QStringLiteral("redirectUri"), service.redirectUri},
                                  {QStringLiteral("email"), email}};
  const QString json = QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact));
  Q_EMIT notified(KZNotify::KZNotifyExchangeResolvingNeedCredential,
                  {{kKZResult, kKZSuccess}, {QRT_ExchangeDiscover_O365LoginParams, json}});
}

void ExchangeDiscovery::reportFound(const DiscoveredExchange& exchange) {
  Dictionary account = {{kKZCalendarIntegrationExchangeEmail, m_email},
                        {kKZCalendarIntegrationIsOnline, exchange.isOnline}};
  const std::pair<QString, QString> texts[] = {
      {kKZCalendarIntegrationExchangeUsername, exchange.username},
      {kKZCalendarIntegrationExchangeExternalUrl, exchange.services.externalUrl.toString()},
      {kKZCalendarIntegrationExchangeInternalUrl, exchange.services.internalUrl.toString()}};
  for (const auto& [key, text] : texts) {
    if (!text.isEmpty()) account.insert(key, text);
  }
  dropRun();
  Q_EMIT notified(KZNotify::KZNotifyResolveExchangeDone,
                  {{kKZResult, kKZSuccess}, {QRT_ExchangeDiscover_Exchange, account}});
}

void ExchangeDiscovery::fail(const NetworkFailure& failure) {
  if (m_run == nullptr) return;
  dropRun();
  if (failure.kind != FailureKind::CredentialRefused) {
    return Q_EMIT notified(KZNotify::KZNotifyResolveExchangeDone, failure.result());
  }
  Q_EMIT message(failure.message());
  // The challenge's answerer shows it in the pane, and sends command 22.
  reportRefusedCredential(CredentialPurpose::Discovery);
}

void ExchangeDiscovery::dropRun() {
  if (m_run == nullptr) return;
  DiscoveryRun* const run = std::exchange(m_run, nullptr);
  run->disconnect(this);
  run->stop();
  // A signal of its own may have led here.
  run->deleteLater();
}
