#include "sandbox/SiteCases.h"

#include <QJsonObject>

namespace sandbox {

namespace {

constexpr SiteToTry sites[] = {
    {SiteCase::Works, "meetings.sandbox.example", "Works and offers version 9.1.0"},
    {SiteCase::Current, "current.sandbox.example", "Works; there is no newer version"},
    {SiteCase::Slow, "slow.meetings.sandbox.example",
     "Works, but each answer takes a second and the update three: time to cancel it"},
    {SiteCase::Silent, "silent.meetings.sandbox.example", "Never answers"},
    {SiteCase::ServerError, "error.meetings.sandbox.example", "Always answers that it has a problem (500)"},
    {SiteCase::OtherName, "certificate.meetings.sandbox.example", "Shows a certificate of another name"},
    {SiteCase::Loop, "loop.meetings.sandbox.example", "Leads on a hundred times"},
    {SiteCase::Garbage, "garbage.meetings.sandbox.example", "Answers everything with a web page"},
    {SiteCase::Huge, "huge.meetings.sandbox.example", "Offers an update that is far longer than it says"},
    {SiteCase::Damaged, "damaged.meetings.sandbox.example", "Offers an update that was damaged on its way"},
};

}  // namespace

std::span<const SiteToTry> sitesToTry() {
  return sites;
}

const SiteToTry* siteOfHost(const QString& host) {
  const QString site = host == downloadsHost() ? QString::fromLatin1(sites[0].site) : host;
  for (const SiteToTry& one : sites) {
    if (site == QLatin1String(one.site)) return &one;
  }
  return nullptr;
}

QString downloadsHost() {
  return QStringLiteral("downloads.sandbox.example");
}

QStringList siteHosts() {
  QStringList names{downloadsHost()};
  for (const SiteToTry& one : sites) {
    if (one.what != SiteCase::OtherName) names.append(QString::fromLatin1(one.site));
  }
  return names;
}

QJsonArray describeSites() {
  QJsonArray described;
  for (const SiteToTry& one : sites) {
    described.append(QJsonObject{{"site", one.site}, {"meaning", one.meaning}});
  }
  return described;
}

}  // namespace sandbox
