#pragma once

#include <QJsonObject>

#include "sandbox/HostServers.h"
#include "sandbox/SiteCases.h"
#include "sandbox/UpdatePackage.h"

namespace sandbox {

// Plays the meeting service of every site to try, and the update service of each. Not for anything but trying
// out.
class MeetingSite final {
 public:
  MeetingSite();
  Q_DISABLE_COPY_MOVE(MeetingSite)

  // False where there is no port or no certificate.
  [[nodiscard]] bool listen();

  // What a host needs to know in order to find its way here.
  QJsonObject describe() const;

 private:
  HttpResponse answer(const HttpRequest& request) const;
  HttpResponse answerWell(SiteCase what, const HttpRequest& request) const;
  HttpResponse siteOf(SiteCase what) const;
  HttpResponse updatesOf(SiteCase what) const;
  HttpResponse packageOf(SiteCase what) const;
  const UpdatePackage& updateOf(SiteCase what) const;

  HostServers m_servers;
  UpdatePackage m_newer;
  UpdatePackage m_same;
};

}  // namespace sandbox
