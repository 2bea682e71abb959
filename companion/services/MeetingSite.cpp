#include "companion/services/MeetingSite.h"

#include <algorithm>

#include "companion/network/NetworkConfiguration.h"
#include "companion/network/WebAddress.h"
#include "companion/services/ServiceNetwork.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZUtility.h"

namespace {

constexpr qsizetype kLongestText = 1000;

// Texts are shown to the user: what would break a line or fill the screen is none.
QString plainText(const Dictionary& record, const char* key) {
  const QString text = textValue(record, QLatin1String(key));
  const bool isPlain = text.size() <= kLongestText &&
                       std::all_of(text.begin(), text.end(), [](QChar c) { return c.isPrint(); });
  return isPlain && !text.isEmpty() ? text : QString();
}

// A site may lead to its own pages, or to this machine.
QUrl ownLink(const Dictionary& links, const char* key, const QString& host) {
  const QUrl link(plainText(links, key), QUrl::StrictMode);
  const bool isOwn = isLoopback(link) || isWithinDomain(link.host(), host);
  return isOwn && isSafeAddress(link) ? link : QUrl();
}

Dictionary preferenceRecord(const Dictionary& said) {
  Dictionary record;
  const std::pair<QString, const char*> texts[] = {{QRT_Preference_PMRUrl, "pmrUrl"},
                                                   {QRT_Preference_PMRSipUrl, "pmrSipUrl"}};
  for (const auto& [key, name] : texts) {
    const QString text = plainText(said, name);
    if (!text.isNull()) record.insert(key, text);
  }
  for (const char* name : {"disableCalendarIntegration", "enableListGoogleCalendarMeeting"}) {
    const auto flag = flagValue(said, QLatin1String(name));
    if (flag) record.insert(QLatin1String(name), *flag);
  }
  return record;
}

}  // namespace

std::optional<MeetingSite> readMeetingSite(const QString& site, const QByteArray& json) {
  const QVariant value = KZUtility::JSONValueFromString(QString::fromUtf8(json));
  if (value.metaType() != QMetaType::fromType<Dictionary>()) return {};
  const Dictionary said = value.toMap();
  const Dictionary links = dictionaryValue(said, QStringLiteral("links"));
  const QUrl address = siteAddress(site);
  const QString host = address.host();
  const QString downloads = plainText(said, "downloads");
  return MeetingSite{
      .site = site,
      .name = plainText(said, "name"),
      .downloads = isSafeStep(address, QUrl(downloads, QUrl::StrictMode)) ? downloads : QString(),
      .isOutlookEnabled = flagValue(said, QStringLiteral("outlook")),
      .meetingSettings = ownLink(links, "meetingSettings", host),
      .joinByNumber = ownLink(links, "joinByNumber", host),
      .preference = preferenceRecord(dictionaryValue(said, QStringLiteral("preference")))};
}
