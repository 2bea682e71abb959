#include "sandbox/Sandbox.h"

#include <QJsonArray>
#include <QStringList>
#include <optional>

#include "sandbox/Cases.h"
#include "sandbox/OnlineServices.h"
#include "sandbox/Responses.h"
#include "sandbox/SiteResponses.h"

namespace sandbox {

namespace {

constexpr std::chrono::seconds slowTime{1};

// The domains of the accounts and sites that have a certificate of another name.
QStringList otherNameDomains() {
  QStringList domains;
  for (const Account& account : accounts()) {
    const bool isOther = account.what == Case::OtherName;
    if (isOther) domains.append(QString::fromLatin1(account.email).section(QLatin1Char('@'), 1));
  }
  for (const Site& site : sites()) {
    if (site.what == Case::OtherName) domains.append(QString::fromLatin1(site.site));
  }
  return domains;
}

// `*` in a certificate matches one label, so each domain with hosts below it needs a name of its own.
QStringList certificateNames() {
  QStringList names{sandboxDomain, QStringLiteral("*.") + sandboxDomain,
                    QStringLiteral("*.online.") + sandboxDomain,
                    QStringLiteral("*.meetings.") + sandboxDomain};
  for (const Account& account : accounts()) {
    const QString name = QStringLiteral("*.") + QString::fromLatin1(account.email).section(u'@', 1);
    if (!names.contains(name)) names.append(name);
  }
  return names;
}

std::optional<HttpResponse> faultResponse(Case what, const HttpRequest& request) {
  switch (what) {
    case Case::Silent:
      return delivered({}, HttpResponse::Delivery::Silent);
    case Case::Drip:
      return delivered(notFound(), HttpResponse::Delivery::Drip);
    case Case::ServerError:
      return HttpResponse{.status = 500};
    case Case::Loop:
      return redirectLoop(request);
    case Case::Garbage:
      return pageResponse(QStringLiteral("Welcome"), QStringLiteral("<p>Welcome to our web site<br>"));
    default:
      return {};
  }
}

}  // namespace

Sandbox::Sandbox(const QString& authorities, ExchangeService::TokenCheck isGranted)
    : m_authorities(authorities), m_exchange(std::move(isGranted)) {}

bool Sandbox::listen() {
  const auto ours = m_certificates.serverOf(certificateNames());
  const auto others = m_certificates.serverOf({QStringLiteral("another.example")});
  if (!ours || !others) return false;
  m_encrypted = std::make_unique<HttpServer>(*ours);
  m_otherName = std::make_unique<HttpServer>(*others);
  for (HttpServer* const server : {&m_plain, m_encrypted.get(), m_otherName.get()}) {
    server->handleOthers([this](const HttpRequest& request) { return respond(request); });
    if (!server->listen()) return false;
  }
  return true;
}

QJsonObject Sandbox::describe() const {
  QJsonObject described = describeCases();
  described.insert("domain", sandboxDomain);
  described.insert("address", "127.0.0.1");
  described.insert("http", m_plain.port());
  described.insert("https", m_encrypted->port());
  described.insert("certificates", m_certificates.authority());
  described.insert("otherName", QJsonObject{{"https", m_otherName->port()},
                                            {"domains", QJsonArray::fromStringList(otherNameDomains())}});
  described.insert("serviceRecords", describeServiceRecords());
  described.insert("online", describeOnlineServices(m_authorities));
  return described;
}

HttpResponse Sandbox::respond(const HttpRequest& request) {
  const QString host = request.host();
  m_visits.append({host, request.headers.value("authorization"), request.isEncrypted});
  if (!request.isEncrypted) {
    return accountOfHost(host) ? m_exchange.respond(request) : sitePage(request.path);
  }
  const Site* const site = siteOfHost(host);
  const Account* const account = accountOfHost(host);
  const Case what = site ? site->what : account ? account->what : Case::Nothing;
  if (const auto fault = faultResponse(what, request)) return *fault;
  HttpResponse response =
      site ? siteResponse(what, request.path, m_plain.url()) : m_exchange.respond(request);
  if (what == Case::Slow) response.delay = slowTime;
  return response;
}

}  // namespace sandbox
