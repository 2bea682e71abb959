#include "sandbox/OnlineServices.h"

#include <QJsonObject>
#include <algorithm>

namespace sandbox {

namespace {

using Fault = Authority::Fault;

// Long enough to list the meetings once.
constexpr int shortLifetime = 60;

// One Office 365, with an authority of its own.
struct OnlineService {
  const char* domain;  // of its hosts
  const char* path;    // of its authority
  Fault fault = Fault::None;
  bool isConsentRefused = false;
  int lifetime = 0;  // of a token, in seconds; 0 for the usual one
};

constexpr OnlineService services[] = {
    {.domain = "online.sandbox.example", .path = "/common"},
    {.domain = "refused.sandbox.example", .path = "/refused", .isConsentRefused = true},
    {.domain = "late.sandbox.example", .path = "/late", .fault = Fault::Late},
    {.domain = "mute.sandbox.example", .path = "/mute", .fault = Fault::Silent},
    {.domain = "trouble.sandbox.example", .path = "/trouble", .fault = Fault::ServerError},
    {.domain = "page.sandbox.example", .path = "/page", .fault = Fault::Html},
    {.domain = "brief.sandbox.example",
     .path = "/brief",
     .fault = Fault::RefusedRefresh,
     .lifetime = shortLifetime},
    {.domain = "endless.sandbox.example", .path = "/endless", .fault = Fault::NoExpiry},
};

QString discoveryHostOf(const OnlineService& service) {
  return QStringLiteral("autodiscover.") + QLatin1String(service.domain);
}

}  // namespace

QString onlineDiscoveryHostOf(const QString& host) {
  const auto* const own = std::find_if(
      std::begin(services), std::end(services),
      [&host](const OnlineService& service) { return host.endsWith(QLatin1String(service.domain)); });
  return discoveryHostOf(own == std::end(services) ? services[0] : *own);
}

bool isOnlineDiscoveryHost(const QString& host) {
  return std::any_of(std::begin(services), std::end(services),
                     [&host](const OnlineService& service) { return host == discoveryHostOf(service); });
}

QJsonArray describeOnlineServices(const QString& authorities) {
  QJsonArray described;
  for (const OnlineService& service : services) {
    described.append(QJsonObject{
        {"hostSuffixes", QJsonArray{service.domain}},
        {"autodiscover", "https://" + discoveryHostOf(service) + "/autodiscover/autodiscover.xml"},
        {"authority", authorities + service.path},
        {"resource", QStringLiteral("https://mail.") + service.domain},
        {"clientId", "sandbox-companion"},
        {"redirectUri", "http://127.0.0.1/signed-in"}});
  }
  return described;
}

OnlineAuthorities::OnlineAuthorities(HttpServer& server, const Settings& settings) {
  for (const OnlineService& service : services) {
    auto authority = std::make_unique<Authority>(server, QString::fromLatin1(service.path));
    authority->setConsent(service.isConsentRefused ? Authority::Consent::Refuse : settings.consent);
    authority->setGeneration(settings.generation);
    authority->setLifetime(service.lifetime == 0 ? settings.lifetime : service.lifetime);
    authority->setFault(service.fault);
    m_authorities.push_back(std::move(authority));
  }
}

bool OnlineAuthorities::isGranted(const QString& accessToken) const {
  return std::any_of(m_authorities.begin(), m_authorities.end(),
                     [&accessToken](const auto& authority) { return authority->isGranted(accessToken); });
}

}  // namespace sandbox
