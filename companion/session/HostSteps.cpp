#include <QClipboard>
#include <QGuiApplication>
#include <QHash>
#include <QLocale>

#include "adal/ADTokenCache.h"
#include "companion/format/HostState.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/Steps.h"
#include "companion/session/ViewDescription.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"

namespace {

using StepTable = QHash<QString, StepFunction*>;

StepResult getToken(Step& step, StepContext& context) {
  const QString email = step.optionalText("email");
  const QString username = step.optionalText("username");
  if (!step.isGood()) return step.result();
  KZTokenLookup* lookup = context.host->tokenLookup();
  if (!lookup) return StepResult::failed(QStringLiteral("this plug-in has no token cache"));
  const Dictionary token = lookup->getAccessTokenByEmail(email, username);
  return StepResult::answer(valuecodec::encodeContent(token.isEmpty() ? Content() : Content(token)));
}

StepResult getPersonalRoom(Step&, StepContext& context) {
  const KZPluginCoreMgr& core = context.host->core();
  return StepResult::answer(QJsonObject{{"join", core.pmrJoinUrl()}, {"sip", core.pmrSipUrl()}});
}

template <auto describe>
StepResult getState(Step&, StepContext&) {
  return StepResult::answer(describe());
}

StepResult setStore(Step& step, StepContext&) {
  const QJsonObject values = step.object("values");
  for (auto value = values.begin(); value != values.end() && step.isGood(); ++value) {
    const valuecodec::Decoded decoded = valuecodec::decode(value.value());
    const QString key = hoststate::storeKeys().value(value.key());
    if (!decoded.error.isEmpty()) step.fail(decoded.error);
    if (key.isNull()) step.fail(QStringLiteral("the store has no %1").arg(value.key()));
    if (step.isGood()) KZPlistFileHandle::sharedInstance().setValue(key, decoded.value);
  }
  return step.result();
}

StepResult setKeychain(Step& step, StepContext&) {
  KZKeyChainHandle& keychain = KZKeyChainHandle::sharedInstance();
  QString username;
  QString password;
  keychain.getOutlookUsername(&username, &password);
  if (step.has("username")) username = step.optionalText("username");
  if (step.has("password")) password = step.optionalText("password");
  if (!step.isGood()) return step.result();
  if (username.isNull() && password.isNull()) {
    keychain.removeOutlookCredential();
  } else {
    keychain.commitOutlookUsername(username, password);
  }
  return {};
}

StepResult setHost(Step& step, StepContext&) {
  const QJsonObject known = hoststate::host();
  for (const QString& key : step.keys()) {
    if (key != "set" && !known.contains(key)) step.fail(QStringLiteral("the host has no %1").arg(key));
  }
  KZUtility& utility = KZUtility::sharedInstance();
  KZApplicationHelper& helper = KZApplicationHelper::sharedInstance();
  const bool isChecking = step.has("checkForUpdatesInProgress") ? step.flag("checkForUpdatesInProgress")
                                                                : utility.isCheckForUpdatesInProgress();
  const bool isOutlookEnabled =
      step.has("siteEnableOutlook") ? step.flag("siteEnableOutlook") : helper.siteEnableOutlook();
  const QVariant link = step.has("joinByNumberLink")
                            ? QVariant(step.optionalText("joinByNumberLink"))
                            : utility.getKZMemCacheData(kPreferences_JoinByNumberLink);
  if (!step.isGood()) return step.result();
  isChecking ? utility.setCheckForUpdatesInProgressFlag() : utility.cleanCheckForUpdatesInProgressFlag();
  helper.setSiteEnableOutlook(isOutlookEnabled);
  utility.setKZMemCacheData(kPreferences_JoinByNumberLink, link);
  return {};
}

StepResult setLanguage(Step& step, StepContext&) {
  const QString language = step.text("to");
  const QLocale locale(language);
  if (locale.language() == QLocale::C && language != "C")
    step.fail(QStringLiteral("there is no language %1").arg(language));
  if (step.isGood()) QLocale::setDefault(locale);
  return step.result();
}

ADTokenCacheItem readToken(Step& values) {
  ADTokenCacheItem item;
  item.userInformation.userId = values.optionalText("userId");
  item.authority = values.optionalText("authority");
  item.resource = values.optionalText("resource");
  item.clientId = values.optionalText("clientId");
  item.accessToken = values.optionalText("accessToken");
  item.refreshToken = values.optionalText("refreshToken");
  item.multiResource = values.optionalFlag("multiResource");
  if (values.has("expiresIn") && !values.raw("expiresIn").isNull()) {
    const auto milliseconds = static_cast<qint64>(values.number("expiresIn") * 1000);
    item.expiresOn = QDateTime::currentDateTimeUtc().addMSecs(milliseconds);
  }
  return item;
}

StepResult setTokens(Step& step, StepContext&) {
  QList<ADTokenCacheItem> items;
  for (const QJsonValue& element : step.list("items")) {
    if (!element.isObject()) return StepResult::failed(QStringLiteral("an item is not an object"));
    Step values(element.toObject());
    items.append(readToken(values));
    if (!values.isGood()) return values.result();
  }
  if (!step.isGood()) return step.result();
  const auto failure = ADTokenCache::defaultCache().replaceAllItems(items);
  return failure ? StepResult::failed(QStringLiteral("the token cache took no items")) : StepResult();
}

StepResult dispatch(const StepTable& table, const char* verb, Step& step, StepContext& context) {
  const QString what = step.text(verb);
  if (!step.isGood()) return step.result();
  if (StepFunction* function = table.value(what)) return function(step, context);
  return StepResult::failed(QStringLiteral("there is no \"%1\" to %2").arg(what, QLatin1String(verb)));
}

}  // namespace

StepResult steps::get(Step& step, StepContext& context) {
  static const StepTable getters = {
      {"store", getState<[] { return hoststate::store(); }>},
      {"keychain", getState<hoststate::keychain>},
      {"host", getState<hoststate::host>},
      {"tokens", getState<[] { return hoststate::tokens(); }>},
      {"token", getToken},
      {"pasteboard", getState<[] { return QGuiApplication::clipboard()->text(); }>},
      {"personalRoom", getPersonalRoom},
      {"signIn", getState<[] { return describeSignIn(findSignInWindows().value(0)); }>},
      {"window", getState<[] { return describeWindow(findPreferencesWindow()); }>},
  };
  return dispatch(getters, "get", step, context);
}

StepResult steps::set(Step& step, StepContext& context) {
  static const StepTable setters = {
      {"store", setStore},       {"keychain", setKeychain}, {"host", setHost},
      {"language", setLanguage}, {"tokens", setTokens},
  };
  return dispatch(setters, "set", step, context);
}
