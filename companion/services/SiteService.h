#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "companion/services/MeetingSite.h"
#include "companion/services/ServiceNetwork.h"

class PluginHost;

// The user's meeting site: what it publishes about itself and the user, for the plug-in and for this host.
// Main thread only.
class SiteService final : public QObject {
  Q_OBJECT

 public:
  // What a site published, or a sentence that says why there is nothing.
  struct Result {
    std::optional<MeetingSite> site = {};
    QString failure = {};
  };
  using Done = std::function<void(const Result&)>;

  // `fallback` is the user's record while no site has given one. The two are not owned and must outlive this.
  SiteService(PluginHost* host, ServiceNetwork* network, const Dictionary& fallback);

  // Sends the user's record to the plug-in, as a host does after a sign-in. A guest has no record.
  void signIn();
  void signOut() { m_isSignedIn = false; }

  // Reads the stored site's description in the background.
  void refresh();

  // Requests a site's description without adopting it; calls back later. One at a time, a new one ends the
  // one before.
  void lookUp(const QString& site, const Done& done);
  void cancelLookUp() { m_lookUp.reset(); }

  // Makes it the user's site, in the store and for the plug-in.
  void adopt(const MeetingSite& site);
  // The same for a site that does not answer.
  void adoptSilent(const QString& site);

  void openMeetingSettings();
  void joinByNumber();

 Q_SIGNALS:
  void message(const QString& text);  // for the user
  void siteWanted();                  // the user wants to change the site
  void refreshed();                   // the stored site has answered, or will not
  void changed();                     // another site, or another download address

 private:
  void openPage(int page);
  void renew(const MeetingSite& site);
  void take(const MeetingSite& site);
  void sendRecord(const Dictionary& record);
  void moveTo(const MeetingSite& site);
  void showNewRecord();
  Dictionary record() const;

  PluginHost* m_host;
  ServiceNetwork* m_network;
  const Dictionary m_fallback;
  std::optional<MeetingSite> m_site;
  std::unique_ptr<WebFetch> m_lookUp;
  std::unique_ptr<WebFetch> m_refresh;
  bool m_isSignedIn = false;
};
