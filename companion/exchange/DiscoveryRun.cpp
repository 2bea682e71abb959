#include "companion/exchange/DiscoveryRun.h"

#include <QRandomGenerator>
#include <algorithm>
#include <utility>

#include "companion/exchange/CredentialChallenge.h"
#include "companion/exchange/ServiceRecords.h"
#include "companion/network/WebAddress.h"

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

// Another server would only ask for the same credential again, and a second refusal could lock the account.
bool isFinal(FailureKind kind) {
  return kind == FailureKind::NoCredential || kind == FailureKind::BadUsername ||
         kind == FailureKind::CredentialRefused || kind == FailureKind::Explained;
}

}  // namespace

DiscoveryRun::DiscoveryRun(const ExchangeConfiguration& configuration, const QString& email)
    : m_configuration(configuration),
      m_consent(configuration.prompt),
      m_context{.network = m_network, .configuration = m_configuration, .consent = m_consent},
      m_email(email) {
  m_stagger.setSingleShot(true);
  m_stagger.setInterval(m_configuration.limits.stagger);
  connect(&m_stagger, &QTimer::timeout, this, &DiscoveryRun::startNext);
}

void DiscoveryRun::start() {
  if (m_state == State::Over) return;
  m_domain = emailDomain(m_email);
  if (m_domain.isEmpty()) return fail({.kind = FailureKind::BadEmail});
  const auto& refusal = m_configuration.network.refusal;
  const QString reason = refusal ? refusal(autodiscoverUrl("https", m_domain)) : QString();
  if (!reason.isEmpty()) return fail({.kind = FailureKind::Explained, .detail = reason});
  m_consent.trustDomain(m_domain);
  startRace();
}

void DiscoveryRun::startRace() {
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

void DiscoveryRun::startNext() {
  if (m_waiting.isEmpty()) {
    const bool isOver = m_running.isEmpty() && m_lookup == nullptr && m_state != State::Over;
    return isOver ? fail(m_worst) : void();
  }
  const Candidate candidate = m_waiting.takeFirst();
  // With a credential one after the other, so that a wrong one is refused once.
  if (!m_waiting.isEmpty() && !m_context.authorize) m_stagger.start();
  candidate.address.isEmpty() ? lookUpServices() : startAttempt(candidate);
}

void DiscoveryRun::startAttempt(const Candidate& candidate) {
  Q_EMIT progressed(QStringLiteral("Asking %1.").arg(candidate.address.host()));
  if (m_state == State::Over) return;
  auto* const attempt = new AutodiscoverAttempt(m_context, m_email);
  attempt->setParent(this);
  m_running.append({attempt, candidate});
  attempt->start(candidate.mode, candidate.address,
                 [this, attempt](const QUrl& address, const AutodiscoverOutcome& outcome) {
                   onOutcome(attempt, address, outcome);
                 });
}

void DiscoveryRun::lookUpServices() {
  if (!m_configuration.services) return startNext();
  m_lookup = new QObject(this);
  QTimer::singleShot(m_configuration.network.limits.request, m_lookup, [this] { onServiceRecords({}); });
  m_configuration.services(QStringLiteral("_autodiscover._tcp.") + m_domain, m_lookup,
                           [this](const QList<ServiceRecord>& records) { onServiceRecords(records); });
}

void DiscoveryRun::onServiceRecords(const QList<ServiceRecord>& records) {
  if (m_lookup == nullptr) return;
  std::exchange(m_lookup, nullptr)->deleteLater();
  for (const ServiceRecord& record : inOrderOfTrial(records, *QRandomGenerator::global())) {
    m_waiting.append({.address = autodiscoverUrl("https", record.target, record.port)});
  }
  startNext();
}

void DiscoveryRun::onOutcome(const AutodiscoverAttempt* attempt, const QUrl& address,
                             const AutodiscoverOutcome& outcome) {
  const auto place = std::find_if(m_running.begin(), m_running.end(),
                                  [attempt](const Running& running) { return running.attempt == attempt; });
  place->attempt->deleteLater();
  m_running.erase(place);
  std::visit([&](const auto& result) { handle(result, address); }, outcome);
}

void DiscoveryRun::handle(const NetworkFailure& failure, const QUrl& /*address*/) {
  if (failure.kind > m_worst.kind) m_worst = failure;
  isFinal(failure.kind) ? fail(failure) : startNext();
}

void DiscoveryRun::handle(const CredentialNeeded& /*needed*/, const QUrl& address) {
  // The others take their turn again only if this one does not help with the credential.
  for (auto running = m_running.crbegin(); running != m_running.crend(); ++running) {
    m_waiting.prepend(running->candidate);
  }
  if (m_lookup != nullptr) m_waiting.append(Candidate());
  stopAttempts();
  m_waiting.prepend({.mode = Mode::Authorized, .address = address});
  m_state = State::AwaitingCredential;
  Q_EMIT progressed(QStringLiteral("%1 asks for a user name and password.").arg(address.host()));
  Q_EMIT credentialNeeded();
}

void DiscoveryRun::goOnWithCredential() {
  m_state = State::Searching;
  m_context.authorize = [this] { return basicCredential(); };
  // The command that brings the credential returns before its answer comes.
  QTimer::singleShot(0, this, &DiscoveryRun::startNext);
}

Authorization DiscoveryRun::basicCredential() {
  const OfferedCredential offered = askForCredential(CredentialPurpose::Discovery);
  if (offered.isEmpty()) return {.header = {}, .missing = FailureKind::NoCredential};
  m_username = offered.username;
  return {.header = basicAuthorization(offered), .missing = FailureKind::BadUsername};
}

void DiscoveryRun::handle(const OtherEmail& other, const QUrl& address) {
  const QString domain = emailDomain(other.email);
  if (domain.isEmpty())
    return handle(NetworkFailure{.kind = FailureKind::BadResponse, .host = address.host()}, address);
  const bool isNew = !m_visitedEmails.contains(other.email.toLower()) &&
                     m_visitedEmails.size() <= m_configuration.limits.hops;
  if (!isNew)
    return handle(NetworkFailure{.kind = FailureKind::TooManyRedirects, .host = address.host()}, address);
  stopAttempts();
  m_waiting.clear();
  // An online service is signed in to in the browser: no password goes there.
  if (m_configuration.onlineServiceOf(domain)) return moveTo(other.email, domain);
  m_consent.ask(autodiscoverUrl("https", domain), RedirectConsent::Question::UnlessTrusted, this,
                [this, email = other.email, domain](bool isAllowed) {
                  if (isAllowed) return moveTo(email, domain);
                  fail({.kind = FailureKind::Declined, .host = domain});
                });
}

void DiscoveryRun::moveTo(const QString& email, const QString& domain) {
  m_email = email;
  m_domain = domain;
  m_consent.trustDomain(domain);
  startRace();
}

void DiscoveryRun::handle(const OnlineService& service, const QUrl& /*address*/) {
  stopAttempts();
  m_waiting.clear();
  m_online = service;
  m_state = State::AwaitingToken;
  Q_EMIT progressed(QStringLiteral("%1 is an Office 365 account.").arg(m_email));
  Q_EMIT tokenNeeded(service, m_email);
}

void DiscoveryRun::goOnWithToken(const QString& username, const QString& token) {
  m_state = State::Searching;
  m_username = username;
  m_context.isOnline = true;
  m_context.authorize = [token] {
    return Authorization{.header = token.isEmpty() ? QByteArray() : "Bearer " + token.toUtf8(),
                         .missing = FailureKind::TokenRefused};
  };
  // From here on only the service's own hosts are asked.
  m_consent.trustOnly(m_online.hostSuffixes);
  m_worst = {.kind = FailureKind::HostUnknown, .host = m_online.autodiscover.host()};
  m_waiting = {{.mode = Mode::Authorized, .address = m_online.autodiscover}};
  QTimer::singleShot(0, this, &DiscoveryRun::startNext);
}

void DiscoveryRun::handle(const ExchangeServices& services, const QUrl& /*address*/) {
  stop();
  Q_EMIT found({.services = services, .username = m_username, .isOnline = m_context.isOnline});
}

void DiscoveryRun::fail(const NetworkFailure& failure) {
  stop();
  Q_EMIT failed(failure);
}

void DiscoveryRun::stop() {
  m_state = State::Over;
  m_waiting.clear();
  m_consent.forget(this);
  stopAttempts();
}

void DiscoveryRun::stopAttempts() {
  m_stagger.stop();
  delete std::exchange(m_lookup, nullptr);
  for (const Running& running : std::exchange(m_running, {})) {
    running.attempt->stop();
    running.attempt->deleteLater();
  }
}
