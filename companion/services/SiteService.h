#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "companion/services/MeetingSite.h"
#include "companion/services/ServiceNetwork.h"

class PluginHost;

// The user's meeting site: what it says of itself and of the user, for the plug-in and for this host. Main
// thread only.
class SiteService final : public QObject {
  Q_OBJECT

 public:
  // What a site said, or a sentence that tells why it said nothing.
  struct Answer {
    std::optional<MeetingSite> site = {};
    QString failure = {};
  };
  using Done = std::function<void(const Answer&)>;

  // `standIn` is the user's record while no site has given one. The two are not owned and must outlive this.
  SiteService(PluginHost* host, ServiceNetwork* network, const Dictionary& standIn);

  // Tells the plug-in, as a host does after a sign-in. While a guest is there nobody's record is told.
  void signIn();
  void signOut() { m_isSignedIn = false; }

  // Asks the stored site in the background.
  void refresh();

  // Asks without taking over; answers later. One question at a time, a new one ends the one before.
  void lookUp(const QString& site, const Done& done);
  void cancelLookUp() { m_question.reset(); }

  // The site from now on; the plug-in and the store learn of it.
  void adopt(const MeetingSite& site);
  // The same for one that does not answer.
  void adoptSilent(const QString& site);

  void openMeetingSettings();
  void joinByNumber();

 Q_SIGNALS:
  void noticed(const QString& text);  // for the user
  void siteWanted();                  // the user wants another one
  void refreshed();                   // the stored site has answered, or will not
  void changed();                     // another site, or another download address

 private:
  void openPage(int page);
  void renew(const MeetingSite& site);
  void take(const MeetingSite& site);
  void tellPlugin(const Dictionary& record);
  void showRecordAnew();
  void showAgain();
  Dictionary record() const;

  PluginHost* m_host;
  ServiceNetwork* m_network;
  const Dictionary m_standIn;
  std::optional<MeetingSite> m_site;
  std::unique_ptr<WebFetch> m_question;
  std::unique_ptr<WebFetch> m_refresh;
  bool m_isSignedIn = false;
};
