#pragma once

#include <QJsonArray>
#include <QString>
#include <QStringList>
#include <span>

namespace sandbox {

// What happens to whoever uses one meeting site.
enum class SiteCase { Works, Current, Slow, Silent, ServerError, OtherName, Loop, Garbage, Huge, Damaged };

struct SiteToTry {
  SiteCase what;
  const char* site;
  const char* meaning;  // for whoever tries it
};

std::span<const SiteToTry> sitesToTry();

// The site of that host, also where the host is the one that its downloads come from; an unknown host plays
// no part, and nothing is there.
const SiteToTry* siteOfHost(const QString& host);

// Where the working site has its downloads; the others have theirs themselves.
QString downloadsHost();

// Every host name that is played, but the one whose certificate is to be another's.
QStringList siteHosts();

QJsonArray describeSites();

}  // namespace sandbox
