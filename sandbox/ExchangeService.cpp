#include "sandbox/ExchangeService.h"

#include <QJsonArray>

#include "sandbox/Cases.h"
#include "sandbox/ExchangeResponses.h"
#include "sandbox/OnlineServices.h"
#include "sandbox/Responses.h"

namespace sandbox {

namespace {

const QString discoveryPath = QStringLiteral("/autodiscover/autodiscover.xml");
const QString meetingPath = QStringLiteral("/EWS/Exchange.asmx");

constexpr int refusalsUntilLocked = 3;

QString urlOf(const QString& host, const QString& path) {
  return QStringLiteral("https://") + host + path;
}

// A server accepts the domain's user name as well as the email address.
bool isNameOf(const Account& account, const QString& name) {
  return name.compare(QLatin1String(account.username), Qt::CaseInsensitive) == 0 ||
         name.compare(QLatin1String(account.email), Qt::CaseInsensitive) == 0;
}

HttpResponse plainResponse(Case what) {
  if (what != Case::PlainRedirect) return notFound();
  return redirectTo(urlOf(QStringLiteral("autodiscover.corp.") + sandboxDomain, discoveryPath));
}

}  // namespace

HttpResponse ExchangeService::respond(const HttpRequest& request) {
  if (request.path == discoveryPath) return discover(request);
  return request.path == meetingPath && request.isEncrypted ? listMeetings(request) : notFound();
}

HttpResponse ExchangeService::discover(const HttpRequest& request) {
  const QString host = request.host();
  const Account* const account = accountOfHost(host);
  const Case what = account ? account->what : Case::Nothing;
  if (!request.isEncrypted) return plainResponse(what);
  if (isOnlineDiscoveryHost(host)) return discoverOnPremise(request);
  switch (what) {
    case Case::Slow:
      return discoverOnPremise(request);
    case Case::OnPremise:
      // As often, the host with the domain's own name is a web site.
      return host.startsWith(QLatin1String("autodiscover.")) ? discoverOnPremise(request) : notFound();
    case Case::ServiceRecord:
      return host.startsWith(QLatin1String("exchange.")) ? discoverOnPremise(request) : notFound();
    case Case::Online:
      return otherUrlResponse(urlOf(onlineDiscoveryHostOf(host), discoveryPath));
    case Case::OtherEmail:
      return otherEmailResponse(QStringLiteral("onprem@corp.") + sandboxDomain);
    case Case::BareChallenge:
      return challengeResponse({"Negotiate", "NTLM"});
    case Case::Entities:
      return entityBombResponse();
    default:
      return notFound();
  }
}

HttpResponse ExchangeService::discoverOnPremise(const HttpRequest& request) {
  if (!isAllowed(request.headers.value("authorization"))) {
    return challengeResponse({"NTLM", "Basic realm=\"Exchange, sandbox\"", "Bearer"});
  }
  const QString domain = request.host().section(QLatin1Char('.'), 1);
  return servicesResponse(urlOf(QStringLiteral("mail.") + domain, meetingPath),
                          urlOf(QStringLiteral("inside.") + domain, meetingPath));
}

HttpResponse ExchangeService::listMeetings(const HttpRequest& request) {
  if (isAllowed(request.headers.value("authorization"))) return meetingsResponse();
  return challengeResponse({"Basic realm=\"Exchange, sandbox\"", "Bearer"});
}

bool ExchangeService::isAllowed(const QByteArray& authorization) {
  if (authorization.startsWith("Bearer ")) return m_isGranted(QString::fromLatin1(authorization.sliced(7)));
  if (!authorization.startsWith("Basic ")) return false;
  const QString credential = QString::fromUtf8(QByteArray::fromBase64(authorization.sliced(6)));
  const Account& account = accounts().front();
  if (!isNameOf(account, credential.section(QLatin1Char(':'), 0, 0))) return false;
  const bool isRight = credential.section(QLatin1Char(':'), 1) == QLatin1String(account.password) &&
                       m_refusals < refusalsUntilLocked;
  if (!isRight) ++m_refusals;
  return isRight;
}

QJsonObject describeServiceRecords() {
  const auto record = [](const char* host, int priority) {
    return QJsonObject{{"target", host + QStringLiteral(".named.") + sandboxDomain},
                       {"port", 443},
                       {"priority", priority},
                       {"weight", 1}};
  };
  return {{QStringLiteral("_autodiscover._tcp.named.") + sandboxDomain,
           QJsonArray{record("spare", 20), record("exchange", 10)}}};
}

}  // namespace sandbox
