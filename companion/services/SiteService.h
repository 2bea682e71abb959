#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>

#include "companion/services/ServiceNetwork.h"

class PluginHost;

// The data that a meeting site publishes.
struct MeetingSite {
  QString site;            // its host name
  QString name = {};       // null where it has none
  QString downloads = {};  // the address of its updates; null: its own
  std::optional<bool> isOutlookEnabled = {};
  QUrl meetingSettings = {};  // empty where there is no such page, or none that may be opened
  QUrl joinByNumber = {};
  Dictionary preference = {};  // the user's record, as the plug-in wants it
};

// Nothing where the text is no such description. Addresses that the site may not name are left out.
std::optional<MeetingSite> readMeetingSite(const QString& site, const QByteArray& json);

// The user's meeting site: the data that it publishes about itself and the user, for the plug-in and this
// host. Main thread only.
class SiteService final : public QObject {
  Q_OBJECT

 public:
  // The site's data, or a sentence with the reason of the failure.
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
  void lookUp(const QString& site, const Done& done) { m_lookUp = ask(site, done); }
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
  std::unique_ptr<HttpCall> ask(const QString& site, const Done& done);
  void take(const MeetingSite& site);
  void sendRecord(const Dictionary& record);
  void moveTo(const MeetingSite& site);
  void showNewRecord();
  Dictionary record() const;

  PluginHost* m_host;
  ServiceNetwork* m_network;
  const Dictionary m_fallback;
  std::optional<MeetingSite> m_site;
  std::unique_ptr<HttpCall> m_lookUp;
  std::unique_ptr<HttpCall> m_refresh;
  bool m_isSignedIn = false;
};
