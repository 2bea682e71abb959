#include "sandbox/ExchangeService.h"

#include <QJsonArray>
#include <algorithm>
#include <utility>

#include "sandbox/Answers.h"
#include "sandbox/ExchangeAnswers.h"
#include "sandbox/OnlineCases.h"

namespace sandbox {

namespace {

const QString discoveryPath = QStringLiteral("/autodiscover/autodiscover.xml");
const QString meetingPath = QStringLiteral("/EWS/Exchange.asmx");

constexpr std::chrono::seconds slowTime{1};
constexpr int refusalsUntilLocked = 3;

QString urlOf(const QString& host, const QString& path) {
  return QStringLiteral("https://") + host + path;
}

// A server takes the name of its domain and the email address alike.
bool isNameOf(const ExchangeAccount& account, const QString& name) {
  return name.compare(QLatin1String(account.username), Qt::CaseInsensitive) == 0 ||
         name.compare(QLatin1String(account.email), Qt::CaseInsensitive) == 0;
}

bool isOnlineDiscovery(const QString& host) {
  const auto services = onlineCases();
  return std::any_of(services.begin(), services.end(),
                     [&host](const OnlineCase& one) { return host == onlineDiscoveryHost(one); });
}

}  // namespace

ExchangeService::ExchangeService(QString authorities, TokenCheck isGranted)
    : m_authorities(std::move(authorities)), m_isGranted(std::move(isGranted)) {}

bool ExchangeService::listen() {
  if (!m_servers.listen(exchangeHosts())) return false;
  handle(m_servers.plain(), false);
  handle(m_servers.encrypted(), true);
  handle(m_servers.otherName(), true);
  return true;
}

void ExchangeService::handle(HttpServer& server, bool isEncrypted) {
  server.handle(discoveryPath,
                [this, isEncrypted](const HttpRequest& request) { return discover(request, isEncrypted); });
  if (!isEncrypted) return;
  server.handle(meetingPath, [this](const HttpRequest& request) { return listMeetings(request); });
}

QJsonObject ExchangeService::describe() const {
  const QString serviceName = QStringLiteral("_autodiscover._tcp.named.") + sandboxDomain;
  const auto record = [](const char* host, int priority) {
    return QJsonObject{{"target", host + QStringLiteral(".named.") + sandboxDomain},
                       {"port", 443},
                       {"priority", priority},
                       {"weight", 1}};
  };
  return {{"domain", sandboxDomain},
          {"address", "127.0.0.1"},
          {"http", m_servers.plainPort()},
          {"https", m_servers.encryptedPort()},
          {"otherName",
           QJsonObject{{"domain", "certificate." + sandboxDomain}, {"https", m_servers.otherNamePort()}}},
          {"certificates", m_servers.certificates()},
          {"services", QJsonObject{{serviceName, QJsonArray{record("spare", 20), record("exchange", 10)}}}},
          {"online", describeOnlineCases(m_authorities)},
          {"accounts", describeAccounts()}};
}

QString ExchangeService::note(const HttpRequest& request, bool isEncrypted) {
  const QString host = request.host();
  m_visits.append({host, request.path, request.method, request.headers.value("authorization"), isEncrypted});
  return host;
}

HttpResponse ExchangeService::discover(const HttpRequest& request, bool isEncrypted) {
  const QString host = note(request, isEncrypted);
  if (!isEncrypted) return discoverPlainly(host);
  if (isOnlineDiscovery(host)) return discoverOnPremise(request, host);
  const ExchangeAccount* const account = accountOfHost(host);
  if (account == nullptr) return notHere();
  switch (account->what) {
    case ExchangeCase::Slow: {
      HttpResponse response = discoverOnPremise(request, host);
      response.delay = slowTime;
      return response;
    }
    case ExchangeCase::OnPremise:
      // As in many places a web site has the domain's own name.
      return host.startsWith(QLatin1String("autodiscover.")) ? discoverOnPremise(request, host) : notHere();
    case ExchangeCase::ServiceRecord:
      return host.startsWith(QLatin1String("exchange.")) ? discoverOnPremise(request, host) : notHere();
    case ExchangeCase::Online:
      return otherUrlAnswer(urlOf(onlineDiscoveryHost(onlineCaseOf(host)), discoveryPath));
    case ExchangeCase::OtherEmail:
      return otherEmailAnswer(QStringLiteral("onprem@corp.") + sandboxDomain);
    case ExchangeCase::Silent:
      return delivered({}, HttpResponse::Delivery::Silent);
    case ExchangeCase::Drip:
      return delivered(notHere(), HttpResponse::Delivery::Drip);
    case ExchangeCase::ServerError:
      return {.status = 500};
    case ExchangeCase::Loop:
      return leadRound(request);
    case ExchangeCase::BareChallenge:
      return challengeAnswer({"Negotiate", "NTLM"});
    case ExchangeCase::Entities:
      return swellingAnswer();
    case ExchangeCase::Garbage:
      return {.contentType = "text/html", .body = "<!DOCTYPE html><html><p>Welcome<br></html>"};
    case ExchangeCase::Nothing:
    case ExchangeCase::OtherName:
    case ExchangeCase::PlainRedirect:
      return notHere();
  }
  return notHere();
}

HttpResponse ExchangeService::discoverPlainly(const QString& host) const {
  const ExchangeAccount* const account = accountOfHost(host);
  if (account == nullptr || account->what != ExchangeCase::PlainRedirect) return notHere();
  return leadTo(urlOf(QStringLiteral("autodiscover.corp.") + sandboxDomain, discoveryPath));
}

HttpResponse ExchangeService::discoverOnPremise(const HttpRequest& request, const QString& host) {
  if (!isAllowed(request.headers.value("authorization"))) {
    return challengeAnswer({"NTLM", "Basic realm=\"Exchange, sandbox\"", "Bearer"});
  }
  const QString domain = host.section(QLatin1Char('.'), 1);
  return servicesAnswer(urlOf(QStringLiteral("mail.") + domain, meetingPath),
                        urlOf(QStringLiteral("inside.") + domain, meetingPath));
}

HttpResponse ExchangeService::listMeetings(const HttpRequest& request) {
  note(request, true);
  if (isAllowed(request.headers.value("authorization"))) return meetingsAnswer();
  return challengeAnswer({"Basic realm=\"Exchange, sandbox\"", "Bearer"});
}

bool ExchangeService::isAllowed(const QByteArray& authorization) {
  if (authorization.startsWith("Bearer ")) return m_isGranted(QString::fromLatin1(authorization.sliced(7)));
  if (!authorization.startsWith("Basic ")) return false;
  const QString credential = QString::fromUtf8(QByteArray::fromBase64(authorization.sliced(6)));
  const ExchangeAccount& account = exchangeAccounts().front();
  if (!isNameOf(account, credential.section(QLatin1Char(':'), 0, 0))) return false;
  const bool isRight = credential.section(QLatin1Char(':'), 1) == QLatin1String(account.password) &&
                       m_refusals < refusalsUntilLocked;
  if (!isRight) ++m_refusals;
  return isRight;
}

}  // namespace sandbox
