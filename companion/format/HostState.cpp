#include "companion/format/HostState.h"

#include <QHash>
#include <QLocale>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"

namespace hoststate {
namespace {

// The script's word for each key of the store.
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

QJsonValue textOrNothing(const QString& text) {
  return valuecodec::encode(QVariant(text));
}

void setUpdateFlag(StepArguments& step) {
  const bool isInProgress = step.flag("checkForUpdatesInProgress");
  if (!step.isGood()) return;
  if (isInProgress) {
    KZUtility::sharedInstance().setCheckForUpdatesInProgressFlag();
  } else {
    KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  }
}

void setOutlookPermission(StepArguments& step) {
  const bool isEnabled = step.flag("siteEnableOutlook");
  if (step.isGood()) KZApplicationHelper::sharedInstance().setSiteEnableOutlook(isEnabled);
}

void setJoinByNumberLink(StepArguments& step) {
  const QString link = step.optionalText("joinByNumberLink");
  if (step.isGood()) KZUtility::sharedInstance().setKZMemCacheData(kPreferences_JoinByNumberLink, link);
}

}  // namespace

QJsonValue store(valuecodec::Form form) {
  const KZPlistFileHandle& plist = KZPlistFileHandle::sharedInstance();
  QJsonObject values;
  for (auto key = storeKeys().begin(); key != storeKeys().end(); ++key) {
    if (plist.isPlistKeyExist(key.value()))
      values.insert(key.key(), valuecodec::encode(plist.value(key.value()), form));
  }
  return values;
}

QJsonValue keychain() {
  QString username;
  QString password;
  KZKeyChainHandle::sharedInstance().getOutlookUsername(&username, &password);
  const auto data = KZKeyChainHandle::sharedInstance().getOutlookOnlineData();
  return QJsonObject{{"outlookUsername", textOrNothing(username)},
                     {"outlookPassword", textOrNothing(password)},
                     {"outlookOnlineData", valuecodec::encode(data ? QVariant(*data) : QVariant())}};
}

QJsonValue host() {
  const KZUtility& utility = KZUtility::sharedInstance();
  return QJsonObject{
      {"checkForUpdatesInProgress", utility.isCheckForUpdatesInProgress()},
      {"siteEnableOutlook", KZApplicationHelper::sharedInstance().siteEnableOutlook()},
      {"joinByNumberLink", valuecodec::encode(utility.getKZMemCacheData(kPreferences_JoinByNumberLink))}};
}

StepOutcome setStore(StepArguments& step) {
  const QJsonObject values = step.object("values");
  for (auto value = values.begin(); value != values.end() && step.isGood(); ++value) {
    const valuecodec::Decoded decoded = valuecodec::decode(value.value());
    if (!decoded.error.isEmpty()) step.fail(decoded.error);
    if (!storeKeys().contains(value.key())) step.fail(QStringLiteral("the store has no %1").arg(value.key()));
    if (step.isGood())
      KZPlistFileHandle::sharedInstance().setValue(storeKeys().value(value.key()), decoded.value);
  }
  return step.outcome();
}

StepOutcome setKeychain(StepArguments& step) {
  KZKeyChainHandle& keychain = KZKeyChainHandle::sharedInstance();
  QString username;
  QString password;
  keychain.getOutlookUsername(&username, &password);
  if (step.has("username")) username = step.optionalText("username");
  if (step.has("password")) password = step.optionalText("password");
  if (!step.isGood()) return step.outcome();
  if (username.isNull() && password.isNull()) {
    keychain.removeOutlookCredential();
  } else {
    keychain.commitOutlookUsername(username, password);
  }
  return StepOutcome::played();
}

StepOutcome setHost(StepArguments& step) {
  static const QHash<QString, void (*)(StepArguments&)> setters = {
      {"checkForUpdatesInProgress", setUpdateFlag},
      {"siteEnableOutlook", setOutlookPermission},
      {"joinByNumberLink", setJoinByNumberLink}};
  for (const QString& key : step.keys()) {
    if (key == "set") continue;
    if (!setters.contains(key)) step.fail(QStringLiteral("the host has no %1").arg(key));
    if (step.isGood()) setters.value(key)(step);
  }
  return step.outcome();
}

StepOutcome setLanguage(StepArguments& step) {
  const QString language = step.text("to");
  const QLocale locale(language);
  if (step.isGood() && locale.language() == QLocale::C && language != "C") {
    step.fail(QStringLiteral("there is no language %1").arg(language));
  }
  if (step.isGood()) QLocale::setDefault(locale);
  return step.outcome();
}

}  // namespace hoststate
