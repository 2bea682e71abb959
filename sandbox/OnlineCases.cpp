#include "sandbox/OnlineCases.h"

#include <QJsonObject>
#include <algorithm>
#include <iterator>

namespace sandbox {

namespace {

using Fault = Authority::Fault;

// Long enough to list the meetings once.
constexpr int shortLifetime = 60;

constexpr OnlineCase cases[] = {
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

}  // namespace

std::span<const OnlineCase> onlineCases() {
  return cases;
}

const OnlineCase& onlineCaseOf(const QString& mailDomain) {
  const auto own = std::find_if(std::begin(cases), std::end(cases), [&mailDomain](const OnlineCase& one) {
    return mailDomain == QLatin1String(one.domain);
  });
  return own == std::end(cases) ? cases[0] : *own;
}

QString onlineDiscoveryHost(const OnlineCase& online) {
  return QStringLiteral("autodiscover.") + QLatin1String(online.domain);
}

QJsonArray describeOnlineCases(const QString& authorities) {
  QJsonArray described;
  for (const OnlineCase& one : cases) {
    described.append(QJsonObject{
        {"hostSuffixes", QJsonArray{one.domain}},
        {"autodiscover", "https://" + onlineDiscoveryHost(one) + "/autodiscover/autodiscover.xml"},
        {"authority", authorities + one.path},
        {"resource", QStringLiteral("https://mail.") + one.domain},
        {"clientId", "sandbox-companion"},
        {"redirectUri", "http://127.0.0.1/signed-in"}});
  }
  return described;
}

}  // namespace sandbox
