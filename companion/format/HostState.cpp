#include "companion/format/HostState.h"

#include "adal/ADTokenCache.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"

namespace hoststate {
namespace {

using valuecodec::Form;

QJsonObject describeItem(const ADTokenCacheItem& item, Form form) {
  QJsonObject description = {{"userId", item.userInformation.userId},
                             {"authority", item.authority},
                             {"resource", item.resource},
                             {"clientId", item.clientId},
                             {"accessToken", item.accessToken},
                             {"refreshToken", item.refreshToken},
                             {"multiResource", item.multiResource}};
  const QDateTime& expiry = item.expiresOn;
  if (form == Form::Printed) {
    const QJsonValue none = QJsonValue::Null;
    description.insert("expiresOn", expiry.isValid() ? expiry.toUTC().toString(Qt::ISODate) : none);
  } else if (expiry.isValid()) {
    const auto milliseconds = QDateTime::currentDateTimeUtc().msecsTo(expiry);
    description.insert("expiresIn", qRound64(static_cast<double>(milliseconds) / 1000));
  }
  return description;
}

}  // namespace

const QHash<QString, QString>& storeKeys() {
  static const QHash<QString, QString> keys = {{"preferenceInfo", "preferenceInfo"},
                                               {"meetingNotification", "meetingNotification"},
                                               {"videoDevice", "videoDevice"},
                                               {"calendarIntegration", "calendarIntegration"},
                                               {"siteName", "siteName"},
                                               {"cdnUrl", "cdnUrl"},
                                               {"userName", "userName"},
                                               {"displayName", "displayName"},
                                               {"launchAtLogin", KZLaunchAtLogin},
                                               {"enableOutlookKZPlugin", KZEnableOutlookKZPlugin}};
  return keys;
}

QJsonObject store(Form form) {
  const KZPlistFileHandle& plist = KZPlistFileHandle::sharedInstance();
  QJsonObject values;
  for (const auto& [name, key] : storeKeys().asKeyValueRange()) {
    if (plist.isPlistKeyExist(key)) values.insert(name, valuecodec::encode(plist.value(key), form));
  }
  return values;
}

QJsonObject keychain() {
  QString username;
  QString password;
  KZKeyChainHandle::sharedInstance().getOutlookUsername(&username, &password);
  const auto data = KZKeyChainHandle::sharedInstance().getOutlookOnlineData();
  return {{"outlookUsername", valuecodec::encode(username)},
          {"outlookPassword", valuecodec::encode(password)},
          {"outlookOnlineData", valuecodec::encode(data ? QVariant(*data) : QVariant())}};
}

QJsonObject host() {
  const KZUtility& utility = KZUtility::sharedInstance();
  return {{"checkForUpdatesInProgress", utility.isCheckForUpdatesInProgress()},
          {"siteEnableOutlook", KZApplicationHelper::sharedInstance().siteEnableOutlook()},
          {"joinByNumberLink", valuecodec::encode(utility.getKZMemCacheData(kPreferences_JoinByNumberLink))}};
}

QJsonArray tokens(Form form) {
  QJsonArray items;
  for (const ADTokenCacheItem& item : ADTokenCache::defaultCache().allItems().items)
    items.append(describeItem(item, form));
  return items;
}

}  // namespace hoststate
