// The legacy windows: preferences windows that a host implements, a general one and one for each meeting. The
// plug-in, which has its own window, creates none of them.
#include <algorithm>

#include "KZPreference/core/KZPreference.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZXmlDocument.h"

QString KZPreference::getBrennOI(const Dictionary& content) {
  return textValue(content, QStringLiteral("BrennOI"));
}

QString KZPreference::paserMeetingKey(const QString& xml) {
  return KZXmlDocument::firstText(xml, QStringLiteral("MivRa"),
                                  {QStringLiteral("MeetingInfo"), QStringLiteral("MeetingKey")});
}

QString KZPreference::hasHostInfo(const Dictionary& content) const {
  const QString xml = getBrennOI(content);
  if (xml.isNull()) return {};
  const QString meetingKey = paserMeetingKey(xml);
  return !meetingKey.isNull() && dictHostInfoWndController.contains(meetingKey) ? meetingKey : QString();
}

void KZPreference::releasePreferenceHostInfoWindowController(const QString& meetingKey) {
  if (!meetingKey.isNull()) dictHostInfoWndController.erase(meetingKey);
}

void KZPreference::releasePreferenceWindowController() {
  myWindowController.reset();
}

void KZPreference::onHandleClosePreferenceWindow() {
  if (myWindowController && myWindowController->isWindowVisible()) myWindowController->close();
}

void KZPreference::onHandleShowPreferenceWindow(const Dictionary& content, const QString& actionFrom) {
  const QString meetingKey = hasHostInfo(content);
  if (!meetingKey.isNull()) {
    const auto& ofMeeting = dictHostInfoWndController.at(meetingKey);
    if (ofMeeting) ofMeeting->bringPreferenceWindowToTop();
  } else if (myWindowController) {
    myWindowController->bringPreferenceWindowToTop();
  } else {
    myDictPreferenceInfo = content;
    showPreferenceWindow();
  }
  writeTelemetryData(TelemetryValue_FeatureName_Click_Preferences, actionFrom);
}

void KZPreference::showPreferenceWindow() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  Dictionary data;
  if (const Content info = store.preferenceInfo()) data.insert(QStringLiteral("kz"), *info);
  if (const QString site = store.siteName(); !site.isNull()) data.insert(QRT_Passport_site, site);
  if (const QString email = store.userName(); !email.isNull()) data.insert(QRT_Passport_email, email);
  showPreferenceWindowWithData(data);
}

void KZPreference::showPreferenceWindowWithData(const Dictionary& data) {
  const Dictionary record = dictionaryValue(data, QStringLiteral("kz"));
  const auto keep = [this](const Dictionary& from, const QString& key) {
    myDictPreferenceInfo.insert(key, from.value(key));
  };
  const auto keepAll = [&](const QStringList& keys) {
    const bool hasAll = std::all_of(keys.begin(), keys.end(),
                                    [&](const QString& key) { return !isMissing(record.value(key)); });
    if (hasAll) std::for_each(keys.begin(), keys.end(), [&](const QString& key) { keep(record, key); });
  };
  const QString tspKey = QStringLiteral("isTSPSite");
  if (const std::optional<bool> isTspSite = flagValue(record, tspKey)) {
    keepAll(*isTspSite ? QStringList{tspKey, QStringLiteral("tspAccountInfo")}
                       : QStringList{tspKey, QStringLiteral("pcnAccountInfo"), QStringLiteral("pinCode")});
  }
  for (const QString& key : {QRT_Passport_email, QRT_Passport_site})
    if (!textValue(data, key).isEmpty()) keep(data, key);
  for (const QString& key : {QStringLiteral("HostInfo"), QRT_Preference_PMRUrl, QRT_Preference_PMRSipUrl})
    if (record.contains(key)) keep(record, key);
}
