#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>

#include "sandbox/HostServers.h"
#include "sandbox/SiteCases.h"
#include "sandbox/UpdatePackage.h"

namespace sandbox {

// Plays the meeting service of every site to try, and the update service of each. Not for anything but trying
// out.
class MeetingSite final {
 public:
  struct Visit {
    QString host;
    QString path;
  };

  MeetingSite();
  Q_DISABLE_COPY_MOVE(MeetingSite)

  // False where there is no port or no certificate.
  [[nodiscard]] bool listen();

  // What a host needs to know in order to find its way here.
  QJsonObject describe() const;

  // Every request for a site, oldest first.
  const QList<Visit>& visits() const { return m_visits; }

 private:
  HttpResponse answer(const HttpRequest& request);
  HttpResponse answerWell(SiteCase what, const HttpRequest& request) const;
  HttpResponse siteOf(SiteCase what) const;
  HttpResponse updatesOf(SiteCase what) const;
  HttpResponse packageOf(SiteCase what) const;
  const UpdatePackage& updateOf(SiteCase what) const;

  HostServers m_servers;
  UpdatePackage m_newer;
  UpdatePackage m_same;
  QList<Visit> m_visits;
};

}  // namespace sandbox
