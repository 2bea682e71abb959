#include "KZPreference/authentication/ADAuthenticationWrapper.h"
#include "KZPreference/authentication/ADTokenCacheWrapper.h"
#include "KZPreference/core/KZPreference.h"
#include "KZPreference/core/PreferenceActionDelegate.h"
#include "KZPreference/layout/Localization.h"
#include "KZPreference/windows/NonSignInPreferenceWindowController.h"
#include "KZPreference/windows/SignInPreferenceWindowController.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZUtility.h"

namespace {

const QString kRecordKey = QStringLiteral("kz");
const QString kAppActionTypeKey = QStringLiteral("AppActionType");

Dictionary dictionaryOfJson(const QString& text) {
  return KZUtility::JSONValueFromString(text).value<Dictionary>();
}

}  // namespace

// The window's controller

void KZPreference::installWindowController(std::unique_ptr<PreferenceWindowController> controller) {
  m_preferenceWindowController = std::move(controller);
  m_preferenceWindowController->setOLAccountAuthenticator(m_olaccountAuthenticator.get());
  m_ADAuthWrapper->setExchangeResolveResultReceiver(m_preferenceWindowController.get());
}

// Always the signed-in variant, also after a guest's.
PreferenceWindowController& KZPreference::ensuredWindowController() {
  if (!m_preferenceWindowController) {
    installWindowController(
        std::make_unique<SignInPreferenceWindowController>(m_preferenceActionDelegate.get()));
  }
  return *m_preferenceWindowController;
}

void KZPreference::initGuestPreference(const Request&) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  if (m_preferenceWindowController) destroyAppPreference({});
  installWindowController(
      std::make_unique<NonSignInPreferenceWindowController>(m_preferenceActionDelegate.get()));
}

void KZPreference::showAppPreference(const Request& request) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", request.content);
  showPreferences(request.dictionary());
}

void KZPreference::showPreferences(const Dictionary& content) {
  PreferenceWindowController& controller = ensuredWindowController();
  controller.refreshPreference();
  controller.showWindow();
  const QString viewType = textValue(content, kOpenPrefsViewType);
  if (isEqualText(viewType, kPrefsAccountView)) controller.gotoAccountView();
}

void KZPreference::destroyAppPreference(const Request&) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const PreferenceWindowController* const closing = m_preferenceWindowController.get();
  if (!closing) return;
  m_ADAuthWrapper->setExchangeResolveResultReceiver(nullptr);
  m_preferenceWindowController->close();
  // What the panes send while they close may make the host ask for the same again.
  if (m_preferenceWindowController.get() != closing) return;
  m_preferenceWindowController->retire();
  // The host may ask for this from inside one of the window's own events, so the controller goes when they
  // are over.
  std::erase_if(m_retiredControllers, [](const auto& controller) { return controller.isNull(); });
  m_retiredControllers.emplace_back(m_preferenceWindowController.get());
  m_preferenceWindowController.release()->deleteLater();
}

// Preference data

void KZPreference::onGetPreferenceDone(const Dictionary& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  if (isActionFailed(content)) return showErrorMessage(content);

  const Dictionary record = dictionaryValue(content, kRecordKey);
  savePreferenceInfo(record);
  ensuredWindowController().setCalendarIntergrationOption(
      {.isEnableNone = isSet(record, QStringLiteral("disableCalendarIntegration")),
       .isEnableMivra = true,
       .isEnableGoogle = isSet(record, QStringLiteral("enableListGoogleCalendarMeeting")),
       .isEnableOutlook = true});

  const Dictionary info = dictionaryOfJson(textValue(record, QStringLiteral("customInfo")));
  const QString action = textValue(info, kAppActionTypeKey);
  if (isEqualText(action, AppActionType_JoinByNumber)) return joinByNumber();
  if (action == QLatin1String("RequireEditSetting"))
    showAppPreference({.content = content, .actionFrom = {}});
}

void KZPreference::savePreferenceInfo(const Dictionary& record) {
  MVRNSInfoTraceIMPL("KZPreference", "%s", Q_FUNC_INFO);
  Dictionary info;
  for (const QString& key : {QRT_Preference_PMRUrl, QRT_Preference_PMRSipUrl}) {
    const QString address = textValue(record, key);
    if (!address.isNull()) info.insert(key, address);
  }
  KZPlistFileHandle::sharedInstance().setPreferenceInfo(info);
  sendPluginCommand(KZCommand::KZCmdPreferenceChanged, info);
}

// The content itself is the record here, unlike in the notification that first brings it.
void KZPreference::onRefreshPreferenceDone(const Dictionary& content) {
  savePreferenceInfo(content);
  if (myWindowController) myWindowController->onRefreshDone(content);
}

void KZPreference::onCheckForUpdatesDone(const Dictionary& content) {
  if (!isActionFailed(content)) return;
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  showErrorMessage(content);
}

bool KZPreference::isActionFailed(const Dictionary& content) {
  return isEqualText(textValue(content, kKZResult), kKZFail);
}

void KZPreference::showErrorMessage(const Dictionary& content) {
  if (!myWarningWindowController)
    myWarningWindowController = std::make_unique<KZWarningWindowController>(this);
  const QString message = textValue(dictionaryValue(content, kKZErrorHandleData), kKZErrorMessage);
  myWarningWindowController->showWithTitle(localizedString("Brenn Mivra Meetings"), message);
}

// The data that the host's own windows were given

void KZPreference::showPreferenceWindow() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  Dictionary data;
  data.insert(kRecordKey, store.preferenceInfo());
  if (const QString site = store.siteName(); !site.isNull()) data.insert(QRT_Passport_site, site);
  if (const QString email = store.userName(); !email.isNull()) data.insert(QRT_Passport_email, email);
  showPreferenceWindowWithData(data);
}

void KZPreference::showPreferenceWindowWithData(const Dictionary& data) {
  const Dictionary record = dictionaryValue(data, kRecordKey);
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

// Exchange and Office 365

void KZPreference::onResolveExchangeDone(const Dictionary& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  if (m_preferenceWindowController) m_preferenceWindowController->onExchangeResolveDone(content);
}

void KZPreference::onExchangeResolvingNeedCredential(const Dictionary& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  if (!isEqualText(textValue(content, kKZResult), kKZSuccess)) {
    MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "resolving exchange failed");
    return;
  }
  const QString type = textValue(content, QRT_ExchangeDiscover_ExchangeType);
  if (isEqualText(type, QRT_ExchangeDiscover_ExchangeTypeOnpremise)) {
    if (m_preferenceWindowController)
      m_preferenceWindowController->onExchangeResolvingNeedCredential(content);
    return;
  }
  m_ADAuthWrapper->startWithParams(
      dictionaryOfJson(textValue(content, QRT_ExchangeDiscover_O365LoginParams)));
}

void KZPreference::onO365LoginRequesting(const Dictionary& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  const Dictionary data = dictionaryOfJson(textValue(content, QStringLiteral("O365LoginData")));
  m_ADAuthWrapper->startWithParams(dictionaryOfJson(textValue(data, QStringLiteral("O365LoginParams"))));
}

void KZPreference::onGetExchonlineToken(const Request& request) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "Content:%@", request.content);
  const Dictionary exchange = dictionaryValue(dictionaryValue(request.dictionary(), kKZCalendarIntegration),
                                              kKZCalendarIntegrationExchange);
  const Dictionary token = ADTokenCacheWrapper::sharedInstance().getAccessTokenByEmail(
      textValue(exchange, kKZCalendarIntegrationExchangeEmail),
      textValue(exchange, kKZCalendarIntegrationExchangeUsername));
  if (isSet(token, QStringLiteral("isTokenExpired"))) {
    m_ADAuthWrapper->refreshTokenWithParams(dictionaryValue(token, QStringLiteral("refreshTokenInfo")),
                                            request.dictionary());
    return;
  }
  Content reply = request.content;
  if (!token.isEmpty()) {
    Dictionary merged = request.dictionary();
    merged.insert(token);
    reply = merged;
  }
  sendPluginCommand(KZCommand::KZCmdExchOnlineTokenGot, reply);
}
