#include "companion/services/SiteService.h"

#include "companion/network/WebAddress.h"
#include "companion/runtime/PluginHost.h"
#include "companion/runtime/PreferencesWindow.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"
#include "platform/WindowController.h"

namespace {

constexpr int kMeetingSettings = 1;
constexpr int kJoinByNumber = 2;

KZPlistFileHandle& siteStore() {
  return KZPlistFileHandle::sharedInstance();
}

SiteService::Result readSite(const QString& site, const WebPage& page) {
  if (siteAddress(site).isEmpty()) {
    return {
        .failure =
            QStringLiteral("\"%1\" is no name of a site. Enter one such as meetings.example.com.").arg(site)};
  }
  if (page.failure) return {.failure = page.failure.message()};
  const auto described = readMeetingSite(site, page.body);
  if (described) return {.site = described};
  const NetworkFailure failure{.kind = FailureKind::BadResponse, .host = page.address.host()};
  return {.failure = failure.message()};
}

// `pattern` is a sentence about the site.
QString siteNotice(const QString& pattern) {
  const QString site = siteStore().siteName();
  if (site.isEmpty()) return QStringLiteral("No site is known. Choose one in Preferences, Account.");
  return pattern.arg(site);
}

void askSite(WebFetch& fetch, const QString& site, const SiteService::Done& done) {
  fetch.start(siteAddress(site).resolved(QUrl(QStringLiteral("companion/site.json"))),
              [site, done](const WebPage& page) { done(readSite(site, page)); });
}

}  // namespace

SiteService::SiteService(PluginHost* host, ServiceNetwork* network, const Dictionary& fallback)
    : m_host(host), m_network(network), m_fallback(fallback) {
  host->handle(KZCommand::KZCmdChangeSite, this, [this](const Content&) { Q_EMIT siteWanted(); });
  host->handle(KZCommand::KZCmdRequireLink, this, [this](const Content& content) {
    openPage(content.value_or(Dictionary()).value(QRT_Require_Link_Action_Type).toInt());
  });
  connect(network, &ServiceNetwork::changed, this, &SiteService::refresh);
}

void SiteService::openPage(int page) {
  if (page == kMeetingSettings) openMeetingSettings();
  if (page == kJoinByNumber) joinByNumber();
}

Dictionary SiteService::record() const {
  return m_site && !m_site->preference.isEmpty() ? m_site->preference : m_fallback;
}

void SiteService::signIn() {
  m_isSignedIn = true;
  sendRecord(record());
}

void SiteService::sendRecord(const Dictionary& record) {
  if (m_isSignedIn) {
    m_host->setPersonalRoom(textValue(record, QRT_Preference_PMRUrl),
                            textValue(record, QRT_Preference_PMRSipUrl));
  }
  m_host->notify(KZNotify::KZNotifyGetPreferenceDone,
                 Dictionary{{kKZResult, kKZSuccess}, {QStringLiteral("kz"), record}});
}

void SiteService::refresh() {
  if (!m_network->isReady() || siteStore().siteName().isEmpty()) return m_refresh.reset();
  m_refresh = m_network->fetch();
  askSite(*m_refresh, siteStore().siteName(), [this](const Result& result) {
    if (result.site) renew(*result.site);
    if (!result.site) Q_EMIT message(result.failure);
    Q_EMIT refreshed();
  });
}

void SiteService::lookUp(const QString& site, const Done& done) {
  m_lookUp = m_network->fetch();
  askSite(*m_lookUp, site, done);
}

void SiteService::renew(const MeetingSite& site) {
  const Dictionary before = record();
  take(site);
  if (m_isSignedIn && record() != before) showNewRecord();
}

void SiteService::take(const MeetingSite& site) {
  const bool isMoved = siteStore().siteName() != site.site || siteStore().cdnUrl() != site.downloads;
  m_site = site;
  siteStore().setSiteName(site.site);
  siteStore().setCdnUrl(site.downloads);
  KZApplicationHelper::sharedInstance().setSiteEnableOutlook(site.isOutlookEnabled.value_or(true));
  const QString join = site.joinByNumber.toString(QUrl::FullyEncoded);
  KZUtility::sharedInstance().setKZMemCacheData(kPreferences_JoinByNumberLink,
                                                join.isEmpty() ? QVariant() : join);
  if (isMoved) Q_EMIT changed();
}

void SiteService::adopt(const MeetingSite& site) {
  moveTo(site);
  Q_EMIT message(QStringLiteral("The site is %1 now.").arg(site.name.isNull() ? site.site : site.name));
}

void SiteService::adoptSilent(const QString& site) {
  moveTo({.site = site});
  Q_EMIT message(QStringLiteral("The site is %1 now. It has not answered yet.").arg(site));
}

void SiteService::moveTo(const MeetingSite& site) {
  m_refresh.reset();
  take(site);
  // A guest's window shows no site.
  if (!m_isSignedIn) return;
  // A window reads the site when it is built.
  m_host->trigger(KZCommand::KZCmdDestroyPreference);
  sendRecord(record());
  m_host->trigger(KZCommand::KZCmdShowPreference, Dictionary{{kOpenPrefsViewType, kPrefsAccountView}});
}

// A window reads the record when it is built. A visible one is in use and stays.
void SiteService::showNewRecord() {
  const Window* window = findPreferencesWindow();
  const bool isInUse = window && window->isVisible();
  if (!isInUse) m_host->trigger(KZCommand::KZCmdDestroyPreference);
  sendRecord(record());
  if (!isInUse) return;
  Q_EMIT message(QStringLiteral("Your site has news for Preferences. Press Close, then Preferences."));
}

void SiteService::openMeetingSettings() {
  if (!m_site || m_site->meetingSettings.isEmpty()) {
    return Q_EMIT message(siteNotice(
        QStringLiteral("%1 names no page of meeting settings. Ask your administrator for its address.")));
  }
  const QString failure = openInBrowser(m_site->meetingSettings);
  if (!failure.isEmpty()) Q_EMIT message(failure);
}

void SiteService::joinByNumber() {
  if (!KZUtility::sharedInstance().getKZMemCacheData(kPreferences_JoinByNumberLink).isValid()) {
    return Q_EMIT message(siteNotice(
        QStringLiteral("%1 names no page for joining by number. Ask your administrator for its address.")));
  }
  // The record replaces the stored one, so a guest's is sent as it is.
  Dictionary wanted = m_isSignedIn ? record() : siteStore().preferenceInfo();
  wanted.insert(QStringLiteral("customInfo"),
                QStringLiteral("{\"AppActionType\":\"%1\"}").arg(AppActionType_JoinByNumber));
  sendRecord(wanted);
}
