#include "companion/exchange/ExchangeDiscovery.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <utility>

#include "companion/exchange/ServiceRecords.h"
#include "companion/network/WebAddress.h"
#include "companion/texts/CompanionText.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"

namespace {

using Mode = AutodiscoverAttempt::Mode;

QUrl autodiscoverUrl(const char* scheme, const QString& host, int port = -1) {
  QUrl url;
  url.setScheme(QLatin1String(scheme));
  url.setHost(host);
  url.setPort(port == 443 ? -1 : port);
  url.setPath(QStringLiteral("/autodiscover/autodiscover.xml"));
  return url;
}

// Another server would only request the same credential again, and a second refusal could lock the account.
bool isFinal(FailureKind kind) {
  return kind == FailureKind::NoCredential || kind == FailureKind::BadUsername ||
         kind == FailureKind::CredentialRefused || kind == FailureKind::Explained;
}

}  // namespace

ExchangeDiscovery::ExchangeDiscovery(const ExchangeConfiguration& configuration, const Dictionary& content)
    : m_configuration(configuration),
      m_account(textValue(content, QRT_ExchangeDiscover_Email).trimmed()),
      m_consent(configuration.prompt),
      m_context{.configuration = m_configuration, .consent = m_consent} {
  m_stagger.setSingleShot(true);
  m_stagger.setInterval(m_configuration.stagger);
  connect(&m_stagger, &QTimer::timeout, this, &ExchangeDiscovery::startNext);
  // The command returns before its answer comes.
  QMetaObject::invokeMethod(this, &ExchangeDiscovery::start, Qt::QueuedConnection);
}

void ExchangeDiscovery::start() {
  if (m_state == State::Over) return;
  const QString domain = emailDomain(m_account);
  if (domain.isEmpty()) return fail({.kind = FailureKind::BadEmail});
  const auto& refusal = m_configuration.network.refusal;
  const QString reason = refusal ? refusal(autodiscoverUrl("https", domain)) : QString();
  if (!reason.isEmpty()) return fail({.kind = FailureKind::Explained, .detail = reason});
  moveTo(m_account, domain);
}

void ExchangeDiscovery::startRace() {
  m_state = State::Searching;
  m_visitedEmails.insert(m_email.toLower());
  m_worst = {.kind = FailureKind::HostUnknown, .host = m_domain};
  if (const auto online = m_configuration.onlineServiceOf(m_domain)) return handle(*online, {});
  const QString usual = QStringLiteral("autodiscover.") + m_domain;
  m_waiting = {{.address = autodiscoverUrl("https", m_domain)},
               {.address = autodiscoverUrl("https", usual)},
               {.mode = Mode::Probe, .address = autodiscoverUrl("http", usual)},
               {}};
  startNext();
}

void ExchangeDiscovery::startNext() {
  if (m_state == State::Over) return;
  if (m_waiting.isEmpty()) {
    const bool isOver = m_running.empty() && m_lookup == nullptr;
    return isOver ? fail(m_worst) : void();
  }
  const Candidate candidate = m_waiting.takeFirst();
  // With a credential one after the other, so that a wrong one is refused once.
  if (!m_waiting.isEmpty() && !m_context.authorize) m_stagger.start();
  candidate.address.isEmpty() ? lookUpServices() : startAttempt(candidate);
}

void ExchangeDiscovery::startAttempt(const Candidate& candidate) {
  Q_EMIT message(companionText("Asking %1.").arg(candidate.address.host()));
  if (m_state == State::Over) return;
  auto* const attempt = new AutodiscoverAttempt(m_context, m_email);
  m_running.push_back({std::unique_ptr<AutodiscoverAttempt>(attempt), candidate});
  attempt->start(candidate.mode, candidate.address,
                 [this, attempt](const QUrl& address, const AutodiscoverOutcome& outcome) {
                   onOutcome(attempt, address, outcome);
                 });
}

void ExchangeDiscovery::lookUpServices() {
  if (!m_configuration.services) return startNext();
  m_lookup = new QObject(this);
  QTimer::singleShot(m_configuration.network.limits.request, m_lookup, [this] { onServiceRecords({}); });
  m_configuration.services(QStringLiteral("_autodiscover._tcp.") + m_domain, m_lookup,
                           [this](const QList<ServiceRecord>& records) { onServiceRecords(records); });
}

void ExchangeDiscovery::onServiceRecords(const QList<ServiceRecord>& records) {
  if (m_lookup == nullptr) return;
  std::exchange(m_lookup, nullptr)->deleteLater();
  for (const ServiceRecord& record : inOrderOfTrial(records, *QRandomGenerator::global())) {
    m_waiting.append({.address = autodiscoverUrl("https", record.target, record.port)});
  }
  startNext();
}

void ExchangeDiscovery::onOutcome(const AutodiscoverAttempt* attempt, const QUrl& address,
                                  const AutodiscoverOutcome& outcome) {
  std::erase_if(m_running, [attempt](const Running& running) { return running.attempt.get() == attempt; });
  std::visit([&](const auto& result) { handle(result, address); }, outcome);
}

void ExchangeDiscovery::handle(const NetworkFailure& failure, const QUrl& /*address*/) {
  if (failure.kind > m_worst.kind) m_worst = failure;
  isFinal(failure.kind) ? fail(failure) : startNext();
}

void ExchangeDiscovery::handle(const CredentialNeeded& /*needed*/, const QUrl& address) {
  // The others take their turn again only if this one does not help with the credential.
  QList<Candidate> waiting = {{.mode = Mode::Authorized, .address = address}};
  for (const Running& running : m_running) waiting.append(running.candidate);
  waiting.append(m_waiting);
  if (m_lookup != nullptr) waiting.append(Candidate());
  stopSearch();
  m_waiting = waiting;
  m_state = State::AwaitingCredential;
  Q_EMIT message(companionText("%1 asks for a user name and password.").arg(address.host()));
  Q_EMIT notified(KZNotify::KZNotifyExchangeResolvingNeedCredential,
                  {{kKZResult, kKZSuccess},
                   {QRT_ExchangeDiscover_ExchangeType, QRT_ExchangeDiscover_ExchangeTypeOnpremise}});
}

void ExchangeDiscovery::sinkCredential(const Dictionary& content) {
  const QString type = textValue(content, QRT_CredentialType);
  if (m_state == State::AwaitingCredential && type == QRT_CredentialTypeUsernamePassword) {
    return goOnWithPassword();
  }
  if (m_state == State::AwaitingToken && type == QRT_CredentialTypeOAuthToken) {
    return goOnWithToken(textValue(content, QRT_CredentialUsername),
                         textValue(content, QRT_CredentialContent));
  }
  MVRNSWarningFuncTraceIMPL("Exchange", Q_FUNC_INFO, "no discovery waits for a credential of type %@", type);
}

void ExchangeDiscovery::goOnWithPassword() {
  m_state = State::Searching;
  m_context.authorize = [this] {
    const Authorization offered = askForCredential(CredentialPurpose::Discovery);
    m_username = offered.username;
    return offered;
  };
  // The command that brings the credential returns before its answer comes.
  QTimer::singleShot(0, this, &ExchangeDiscovery::startNext);
}

void ExchangeDiscovery::handle(const OtherEmail& other, const QUrl& address) {
  const QString domain = emailDomain(other.email);
  const bool isNew = !m_visitedEmails.contains(other.email.toLower()) && m_visitedEmails.size() <= kMostHops;
  if (domain.isEmpty() || !isNew) {
    const auto kind = domain.isEmpty() ? FailureKind::BadResponse : FailureKind::TooManyRedirects;
    return handle(NetworkFailure{.kind = kind, .host = address.host()}, address);
  }
  stopSearch();
  // The user signs in to an online service in the browser, so no password is sent to it.
  if (m_configuration.onlineServiceOf(domain)) return moveTo(other.email, domain);
  m_consent.ask(autodiscoverUrl("https", domain), RedirectConsent::Question::UnlessTrusted,
                [this, email = other.email, domain](bool isAllowed) {
                  if (isAllowed) return moveTo(email, domain);
                  fail({.kind = FailureKind::Declined, .host = domain});
                });
}

void ExchangeDiscovery::moveTo(const QString& email, const QString& domain) {
  m_email = email;
  m_domain = domain;
  m_consent.trustDomain(domain);
  startRace();
}

void ExchangeDiscovery::handle(const OnlineService& service, const QUrl& /*address*/) {
  stopSearch();
  m_online = service;
  m_state = State::AwaitingToken;
  Q_EMIT message(companionText("%1 is an Office 365 account.").arg(m_email));
  const QJsonObject parameters = {{QStringLiteral("authority"), service.authority},
                                  {QStringLiteral("resource"), service.resource},
                                  {QStringLiteral("clientId"), service.clientId},
                                  {QStringLiteral("redirectUri"), service.redirectUri},
                                  {QStringLiteral("email"), m_email}};
  const QString json = QString::fromUtf8(QJsonDocument(parameters).toJson(QJsonDocument::Compact));
  Q_EMIT notified(KZNotify::KZNotifyExchangeResolvingNeedCredential,
                  {{kKZResult, kKZSuccess}, {QRT_ExchangeDiscover_O365LoginParams, json}});
}

void ExchangeDiscovery::goOnWithToken(const QString& username, const QString& token) {
  m_state = State::Searching;
  m_username = username;
  m_context.isOnline = true;
  m_context.authorize = [token] {
    return Authorization{.header = token.isEmpty() ? QByteArray() : "Bearer " + token.toUtf8(),
                         .missing = FailureKind::TokenRefused};
  };
  // From here on requests go to the service's own hosts only.
  m_consent.trustOnly(m_online.hostSuffixes);
  m_worst = {.kind = FailureKind::HostUnknown, .host = m_online.autodiscover.host()};
  m_waiting = {{.mode = Mode::Authorized, .address = m_online.autodiscover}};
  QTimer::singleShot(0, this, &ExchangeDiscovery::startNext);
}

void ExchangeDiscovery::handle(const ExchangeServices& services, const QUrl& /*address*/) {
  stop();
  Dictionary account = {{kKZCalendarIntegrationExchangeEmail, m_account},
                        {kKZCalendarIntegrationIsOnline, m_context.isOnline}};
  const std::pair<QString, QString> texts[] = {
      {kKZCalendarIntegrationExchangeUsername, m_username},
      {kKZCalendarIntegrationExchangeExternalUrl, services.externalUrl.toString()},
      {kKZCalendarIntegrationExchangeInternalUrl, services.internalUrl.toString()}};
  for (const auto& [key, text] : texts) {
    if (!text.isEmpty()) account.insert(key, text);
  }
  Q_EMIT notified(KZNotify::KZNotifyResolveExchangeDone,
                  {{kKZResult, kKZSuccess}, {QRT_ExchangeDiscover_Exchange, account}});
}

void ExchangeDiscovery::fail(const NetworkFailure& failure) {
  if (m_state == State::Over) return;
  stop();
  if (failure.kind != FailureKind::CredentialRefused) {
    return Q_EMIT notified(KZNotify::KZNotifyResolveExchangeDone, failure.result());
  }
  Q_EMIT message(failure.message());
  // The challenge's answerer shows it in the pane, and sends command 22.
  reportRefusedCredential(CredentialPurpose::Discovery);
}

void ExchangeDiscovery::cancel() {
  if (m_state == State::Over) return;
  stop();
  Q_EMIT message(companionText("The search for an Exchange service was given up."));
}

void ExchangeDiscovery::stop() {
  m_state = State::Over;
  stopSearch();
}

void ExchangeDiscovery::stopSearch() {
  m_stagger.stop();
  m_waiting.clear();
  m_running.clear();
  m_consent.dropQuestions();
  delete std::exchange(m_lookup, nullptr);
}
