#include "companion/services/SiteService.h"

#include <algorithm>

#include "companion/network/WebAddress.h"
#include "companion/runtime/PluginHost.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/texts/CompanionText.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"
#include "platform/WindowController.h"

namespace {

constexpr qsizetype kLongestText = 1000;
constexpr int kMeetingSettings = 1;
constexpr int kJoinByNumber = 2;

// The text under the key, which is shown to the user; null where it would break a line or fill the screen.
QString plainText(const Dictionary& record, const char* key) {
  const QString text = textValue(record, QLatin1String(key));
  const bool isPlain = text.size() <= kLongestText &&
                       std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); });
  return isPlain && !text.isEmpty() ? text : QString();
}

QUrl ownLink(const Dictionary& links, const char* key, const QString& host) {
  const QUrl link(plainText(links, key), QUrl::StrictMode);
  return isOwnPage(link, host) ? link : QUrl();
}

Dictionary preferenceRecord(const Dictionary& description) {
  Dictionary record;
  const std::pair<QString, const char*> texts[] = {{QRT_Preference_PMRUrl, "pmrUrl"},
                                                   {QRT_Preference_PMRSipUrl, "pmrSipUrl"}};
  for (const auto& [key, name] : texts) {
    const QString text = plainText(description, name);
    if (!text.isNull()) record.insert(key, text);
  }
  for (const char* name : {"disableCalendarIntegration", "enableListGoogleCalendarMeeting"}) {
    const auto flag = flagValue(description, QLatin1String(name));
    if (flag) record.insert(QLatin1String(name), *flag);
  }
  return record;
}

KZPlistFileHandle& siteStore() {
  return KZPlistFileHandle::sharedInstance();
}

SiteService::Result readSite(const QString& site, const HttpResponse& response) {
  if (siteAddress(site).isEmpty()) {
    return {
        .failure =
            companionText("\"%1\" is no name of a site. Enter one such as meetings.example.com.").arg(site)};
  }
  if (response.failure) return {.failure = response.failure.message()};
  const auto described = readMeetingSite(site, response.body);
  if (described) return {.site = described};
  const NetworkFailure failure{.kind = FailureKind::BadResponse, .host = response.address.host()};
  return {.failure = failure.message()};
}

QString noPageText(const QString& pattern) {
  const QString site = siteStore().siteName();
  if (site.isEmpty()) return companionText("No site is known. Choose one in Preferences, Account.");
  return pattern.arg(site);
}

}  // namespace

std::optional<MeetingSite> readMeetingSite(const QString& site, const QByteArray& json) {
  const QVariant value = KZUtility::JSONValueFromString(QString::fromUtf8(json));
  if (value.metaType() != QMetaType::fromType<Dictionary>()) return {};
  const Dictionary description = value.toMap();
  const Dictionary links = dictionaryValue(description, QStringLiteral("links"));
  const QUrl address = siteAddress(site);
  const QString host = address.host();
  const QString downloads = plainText(description, "downloads");
  return MeetingSite{
      .site = site,
      .name = plainText(description, "name"),
      .downloads = isSafeStep(address, QUrl(downloads, QUrl::StrictMode)) ? downloads : QString(),
      .isOutlookEnabled = flagValue(description, QStringLiteral("outlook")),
      .meetingSettings = ownLink(links, "meetingSettings", host),
      .joinByNumber = ownLink(links, "joinByNumber", host),
      .preference = preferenceRecord(dictionaryValue(description, QStringLiteral("preference")))};
}

SiteService::SiteService(PluginHost* host, ServiceNetwork* network, const Dictionary& fallback)
    : m_host(host), m_network(network), m_fallback(fallback) {
  host->handle(KZCommand::KZCmdChangeSite, this, [this](const Content&) { Q_EMIT siteWanted(); });
  host->handle(KZCommand::KZCmdRequireLink, this, [this](const Content& content) {
    const int page = content.value_or(Dictionary()).value(QRT_Require_Link_Action_Type).toInt();
    if (page == kMeetingSettings) openMeetingSettings();
    if (page == kJoinByNumber) joinByNumber();
  });
  connect(network, &ServiceNetwork::changed, this, &SiteService::refresh);
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

std::unique_ptr<HttpCall> SiteService::ask(const QString& site, const Done& done) {
  return m_network->fetch(siteAddress(site).resolved(QUrl(QStringLiteral("companion/site.json"))),
                          [site, done](const HttpResponse& response) { done(readSite(site, response)); });
}

void SiteService::refresh() {
  if (!m_network->isReady() || siteStore().siteName().isEmpty()) return m_refresh.reset();
  m_refresh = ask(siteStore().siteName(), [this](const Result& result) {
    const Dictionary before = record();
    result.site ? take(*result.site) : Q_EMIT message(result.failure);
    if (m_isSignedIn && record() != before) showNewRecord();
    Q_EMIT refreshed();
  });
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
  Q_EMIT message(companionText("The site is %1 now.").arg(site.name.isNull() ? site.site : site.name));
}

void SiteService::adoptSilent(const QString& site) {
  moveTo({.site = site});
  Q_EMIT message(companionText("The site is %1 now. It has not answered yet.").arg(site));
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
  Q_EMIT message(
      companionText("Your site has news for Preferences. Press Close Preferences, then Preferences."));
}

void SiteService::openMeetingSettings() {
  if (!m_site || m_site->meetingSettings.isEmpty()) {
    return Q_EMIT message(noPageText(
        companionText("%1 names no page of meeting settings. Ask your administrator for its address.")));
  }
  const QString failure = openInBrowser(m_site->meetingSettings);
  if (!failure.isEmpty()) Q_EMIT message(failure);
}

void SiteService::joinByNumber() {
  if (!KZUtility::sharedInstance().getKZMemCacheData(kPreferences_JoinByNumberLink).isValid()) {
    return Q_EMIT message(noPageText(
        companionText("%1 names no page for joining by number. Ask your administrator for its address.")));
  }
  // The record replaces the stored one, so a guest's is sent as it is.
  Dictionary wanted = m_isSignedIn ? record() : siteStore().preferenceInfo().value_or(Dictionary());
  wanted.insert(QStringLiteral("customInfo"),
                QStringLiteral("{\"AppActionType\":\"%1\"}").arg(AppActionType_JoinByNumber));
  sendRecord(wanted);
}
