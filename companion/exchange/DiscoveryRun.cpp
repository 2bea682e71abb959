#include "companion/exchange/DiscoveryRun.h"

#include <QRandomGenerator>
#include <algorithm>
#include <utility>

#include "companion/exchange/CredentialChallenge.h"
#include "companion/exchange/EmailDomain.h"
#include "companion/exchange/ServiceRecords.h"

namespace {

QUrl autodiscoverUrl(const char* scheme, const QString& host, int port = -1) {
  QUrl url;
  url.setScheme(QLatin1String(scheme));
  url.setHost(host);
  url.setPort(port == 443 ? -1 : port);
  url.setPath(QStringLiteral("/autodiscover/autodiscover.xml"));
  return url;
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
  if (m_domain.isEmpty()) return fail({.kind = DiscoveryFailureKind::BadEmail});
  m_consent.trustDomain(m_domain);
  startRace();
}

DiscoveryRun::Candidate DiscoveryRun::lookUpOf(const QString& domain) {
  return {.kind = Candidate::Kind::LookUp, .serviceName = QStringLiteral("_autodiscover._tcp.") + domain};
}

void DiscoveryRun::startRace() {
  m_state = State::Probing;
  m_visitedEmails.insert(m_email.toLower());
  m_worst = {.kind = DiscoveryFailureKind::HostUnknown, .host = m_domain};
  const auto online = onlineServiceOf(m_configuration.onlineServices, m_domain);
  if (online) return onOnline(*online);
  const QString usual = QStringLiteral("autodiscover.") + m_domain;
  m_waiting = {{.kind = Candidate::Kind::Ask, .address = autodiscoverUrl("https", m_domain)},
               {.kind = Candidate::Kind::Ask, .address = autodiscoverUrl("https", usual)},
               {.kind = Candidate::Kind::Probe, .address = autodiscoverUrl("http", usual)},
               lookUpOf(m_domain)};
  startNext();
}

void DiscoveryRun::startNext() {
  if (m_waiting.isEmpty()) {
    const bool isOver = m_running.isEmpty() && m_lookup == nullptr && m_state != State::Over;
    return isOver ? fail(m_worst) : void();
  }
  const Candidate candidate = m_waiting.takeFirst();
  // With a credential one after the other, so that a wrong one is refused once.
  if (!m_waiting.isEmpty() && m_state == State::Probing) m_stagger.start();
  startCandidate(candidate);
}

void DiscoveryRun::startCandidate(const Candidate& candidate) {
  if (candidate.kind == Candidate::Kind::LookUp) return lookUpServices(candidate.serviceName);
  Q_EMIT noticed(QStringLiteral("Asking %1").arg(candidate.address.host()));
  if (m_state == State::Over) return;
  auto* const attempt = new AutodiscoverAttempt(m_context, m_email);
  attempt->setParent(this);
  attempt->setDone([this, attempt](const AutodiscoverOutcome& outcome) { onOutcome(attempt, outcome); });
  m_running.append({attempt, candidate});
  if (candidate.kind == Candidate::Kind::Ask) return attempt->ask(candidate.address);
  if (candidate.kind == Candidate::Kind::Probe) return attempt->probe(candidate.address);
  attempt->askAuthorized(candidate.address);
}

void DiscoveryRun::lookUpServices(const QString& name) {
  if (!m_configuration.services) return startNext();
  m_lookup = new QObject(this);
  QTimer::singleShot(m_configuration.network.limits.request, m_lookup, [this] { onServices({}); });
  m_configuration.services(name, m_lookup,
                           [this](const QList<ServiceRecord>& records) { onServices(records); });
}

void DiscoveryRun::onServices(const QList<ServiceRecord>& records) {
  if (m_lookup == nullptr) return;
  std::exchange(m_lookup, nullptr)->deleteLater();
  for (const ServiceRecord& record : inOrderOfTrial(records, *QRandomGenerator::global())) {
    m_waiting.append(
        {.kind = Candidate::Kind::Ask, .address = autodiscoverUrl("https", record.target, record.port)});
  }
  startNext();
}

void DiscoveryRun::onOutcome(const AutodiscoverAttempt* attempt, const AutodiscoverOutcome& outcome) {
  const auto place = std::find_if(m_running.begin(), m_running.end(),
                                  [attempt](const Running& running) { return running.attempt == attempt; });
  place->attempt->deleteLater();
  m_running.erase(place);
  switch (outcome.kind) {
    case AutodiscoverOutcome::Kind::Failure:
      return onFailure(outcome.failure);
    case AutodiscoverOutcome::Kind::Services:
      return onServicesFound(outcome.services);
    case AutodiscoverOutcome::Kind::Challenge:
      return onChallenge(outcome.address);
    case AutodiscoverOutcome::Kind::OtherEmail:
      return onOtherEmail(outcome.address, outcome.otherEmail);
    case AutodiscoverOutcome::Kind::Online:
      return onOnline(*outcome.online);
    case AutodiscoverOutcome::Kind::Refused:
      return onRefused(outcome.address);
  }
}

void DiscoveryRun::onFailure(const DiscoveryFailure& failure) {
  if (failure.kind > m_worst.kind) m_worst = failure;
  // Without a credential every further server would only ask for it again.
  const bool isHopeless =
      failure.kind == DiscoveryFailureKind::NoCredential || failure.kind == DiscoveryFailureKind::BadUsername;
  if (isHopeless) return fail(failure);
  startNext();
}

void DiscoveryRun::onChallenge(const QUrl& address) {
  // The others take their turn again only if this one does not help with the credential.
  for (auto running = m_running.crbegin(); running != m_running.crend(); ++running) {
    m_waiting.prepend(running->candidate);
  }
  if (m_lookup != nullptr) m_waiting.append(lookUpOf(m_domain));
  stopAttempts();
  m_waiting.prepend({.kind = Candidate::Kind::AskAuthorized, .address = address});
  m_state = State::AwaitingCredential;
  Q_EMIT noticed(QStringLiteral("%1 asks for a user name and password").arg(address.host()));
  Q_EMIT credentialNeeded();
}

void DiscoveryRun::goOnWithCredential() {
  m_state = State::Authorizing;
  m_context.authorize = [this] { return basicCredential(); };
  // Whoever brings the credential is not to be answered before it has returned.
  QTimer::singleShot(0, this, &DiscoveryRun::startNext);
}

Authorization DiscoveryRun::basicCredential() {
  const OfferedCredential offered = askForCredential(CredentialPurpose::Discovery);
  if (offered.isEmpty()) return {.header = {}, .missing = DiscoveryFailureKind::NoCredential};
  m_username = offered.username;
  return {.header = basicAuthorization(offered), .missing = DiscoveryFailureKind::BadUsername};
}

void DiscoveryRun::onOtherEmail(const QUrl& address, const QString& email) {
  const QString domain = emailDomain(email);
  const bool isFresh = !domain.isEmpty() && !m_visitedEmails.contains(email.toLower()) &&
                       m_visitedEmails.size() <= m_configuration.limits.hops;
  if (!isFresh) {
    const auto kind =
        domain.isEmpty() ? DiscoveryFailureKind::BadAnswer : DiscoveryFailureKind::TooManyRedirects;
    return onFailure({.kind = kind, .host = address.host()});
  }
  stopAttempts();
  m_waiting.clear();
  const bool isOnline = onlineServiceOf(m_configuration.onlineServices, domain).has_value();
  // An online service is signed in to in the browser: it is never given a password by us.
  if (isOnline) return moveTo(email, domain);
  m_consent.ask(autodiscoverUrl("https", domain), RedirectConsent::Question::UnlessTrusted, this,
                [this, email, domain](bool isAllowed) {
                  if (isAllowed) return moveTo(email, domain);
                  fail({.kind = DiscoveryFailureKind::Declined, .host = domain});
                });
}

void DiscoveryRun::moveTo(const QString& email, const QString& domain) {
  m_email = email;
  m_domain = domain;
  m_consent.trustDomain(domain);
  startRace();
}

void DiscoveryRun::onOnline(const OnlineService& service) {
  stopAttempts();
  m_waiting.clear();
  m_online = service;
  m_state = State::AwaitingToken;
  Q_EMIT noticed(QStringLiteral("%1 is an Office 365 account").arg(m_email));
  Q_EMIT tokenNeeded(service, m_email);
}

void DiscoveryRun::goOnWithToken(const QString& username, const QString& token) {
  m_state = State::ResolvingOnline;
  m_username = username;
  m_context.isOnline = true;
  m_context.authorize = [token] {
    return Authorization{.header = token.isEmpty() ? QByteArray() : "Bearer " + token.toUtf8(),
                         .missing = DiscoveryFailureKind::TokenRefused};
  };
  // From here on only the service's own hosts are asked.
  m_consent.trustOnly(m_online.hostSuffixes);
  m_worst = {.kind = DiscoveryFailureKind::HostUnknown, .host = m_online.autodiscover.host()};
  m_waiting = {{.kind = Candidate::Kind::AskAuthorized, .address = m_online.autodiscover}};
  QTimer::singleShot(0, this, &DiscoveryRun::startNext);
}

void DiscoveryRun::onServicesFound(const ExchangeServices& services) {
  const bool isOnline = m_context.isOnline;
  stop();
  Q_EMIT found({.services = services, .username = m_username, .isOnline = isOnline});
}

void DiscoveryRun::onRefused(const QUrl& address) {
  if (m_context.isOnline) return fail({.kind = DiscoveryFailureKind::TokenRefused, .host = address.host()});
  stop();
  Q_EMIT refused(QStringLiteral("%1 refused the user name or the password").arg(address.host()));
}

void DiscoveryRun::fail(const DiscoveryFailure& failure) {
  stop();
  Q_EMIT failed(messageOf(failure));
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
