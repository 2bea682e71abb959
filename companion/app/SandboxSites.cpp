#include "companion/app/SandboxSites.h"

#include <QJsonArray>

QList<SandboxSite> sandboxSites(const QJsonObject& description) {
  QList<SandboxSite> sites;
  for (const QJsonValue& one : description.value(QLatin1String("sites")).toArray()) {
    sites.append({one[QLatin1String("site")].toString(), one[QLatin1String("meaning")].toString()});
  }
  return sites;
}
