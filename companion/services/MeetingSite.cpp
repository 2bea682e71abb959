#include "companion/services/MeetingSite.h"

#include <algorithm>

#include "companion/network/WebAddress.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZUtility.h"

namespace {

constexpr qsizetype kLongestText = 1000;

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
