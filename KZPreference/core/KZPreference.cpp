#include "KZPreference/core/KZPreference.h"

#include <QUrl>

#include "KZPreference/authentication/ADAuthenticationWrapper.h"
#include "KZPreference/authentication/OLAccountAuthenticator.h"
#include "KZPreference/authentication/TokenRequests.h"
#include "KZPreference/core/PreferenceActionDelegate.h"
#include "KZPreference/layout/PreferenceTelemetry.h"
#include "KZPreference/windows/SignInPreferenceWindowController.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZFoundation/KZPluginCoreMgr.h"
#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZUtility.h"
#include "host/KZUtility/KZWorkspace.h"

using enum KZCommand;
using enum KZNotify;

KZPreference::KZPreference(KZPluginCoreMgr* core) : KZPluginMgr(core) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_preferenceActionDelegate = std::make_unique<PreferenceActionDelegate>(this);
  m_olaccountAuthenticator = std::make_unique<OLAccountAuthenticator>(m_preferenceActionDelegate.get());
  m_preferenceWindowController =
      std::make_unique<SignInPreferenceWindowController>(m_preferenceActionDelegate.get());
  m_preferenceWindowController->setOLAccountAuthenticator(m_olaccountAuthenticator.get());
  PreferenceTelemetry::sharedInstance().setTelemetryDelegate(this);
  m_ADAuthWrapper = std::make_unique<ADAuthenticationWrapper>(m_preferenceActionDelegate.get());
  m_ADAuthWrapper->setExchangeResolveResultReceiver(m_preferenceWindowController.get());
  m_preferenceActionDelegate->setADAuthWrapper(m_ADAuthWrapper.get());
  m_tokenRequests = std::make_unique<TokenRequests>(m_ADAuthWrapper.get(), this);
}

KZPreference::~KZPreference() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  PreferenceTelemetry::sharedInstance().setTelemetryDelegate(nullptr);
  m_ADAuthWrapper->setExchangeResolveResultReceiver(nullptr);
  for (const auto& controller : m_retiredControllers) delete controller;
}

quint64 KZPreference::onHandleOtherPluginsTriggerCommand(quint64 command, const Content& content) {
  const Dictionary dictionary = content.value_or(Dictionary());
  const bool isFromApp =
      isEqualText(textValue(dictionary, TelemetryKey_ActionFrom), TelemetryValue_ActionFrom_APP);
  const QString& actionFrom = isFromApp ? TelemetryValue_ActionFrom_APP : TelemetryValue_ActionFrom_Outlook;
  switch (static_cast<KZCommand>(command)) {
    case KZCmdInitGuestPreference:
      initGuestPreference();
      break;
    case KZCmdShowPreference:
      showAppPreference(content);
      break;
    case KZCmdDestroyPreference:
      destroyAppPreference();
      break;
    case KZCmdCheckForUpdates:
      onHandleCheckForUpdates(actionFrom);
      break;
    case KZCmdCheckForUpdatesAutomatically:
      onHandleCheckForUpdatesAutomatically();
      break;
    case KZCmdJoinByNumber:
      onHandleJoinByNumber(actionFrom);
      break;
    case KZCmdRequireChangeCalendarIntegration:
      onChangeCalenderIntegrationRequiring(content);
      break;
    case KZCmdProximity:
      // Compared by identity: only the host's own constant counts, not an equal text.
      if (textValue(dictionary, kproximityCommand).constData() == kstartDetectVD.constData())
        onEnableProximityAutoDetect();
      break;
    case KZCmdGetExchOnlineToken:
      onGetExchonlineToken(content);
      break;
    default:  // sent to the host only, or unknown
      break;
  }
  return 0;
}

// Without a default, so that a new notification does not compile until it has a handler.
quint64 KZPreference::onHandleServicesNotification(const KZEventIdentify& event, const Content& content) {
  switch (static_cast<KZNotify>(event.m_componentEventIndex)) {
    case KZNotifyGetPreferenceDone:
      onGetPreferenceDone(content);
      break;
    case KZNotifyCheckForUpdatesDone:
      onCheckForUpdatesDone(content);
      break;
    case KZNotifyRefreshPreferenceDone:
      onRefreshPreferenceDone(content);
      break;
    case KZNotifyResolveExchangeDone:
      onResolveExchangeDone(content);
      break;
    case KZNotifyO365LoginRequesting:
      onO365LoginRequesting(content);
      break;
    case KZNotifyExchangeResolvingNeedCredential:
      onExchangeResolvingNeedCredential(content);
      break;
  }
  return 0;
}

quint64 KZPreference::sendPluginCommand(KZCommand command, const Content& content) {
  return m_pluginCoreMgr->sendPluginCommand(static_cast<quint64>(command), content);
}

void KZPreference::writeTelemetryData(const QString& featureName, const QString& actionFrom) {
  sendPluginCommand(KZCmdWriteTelemetry,
                    PreferenceTelemetry::recordWithValues(
                        {{TelemetryKey_FeatureName, featureName}, {TelemetryKey_ActionFrom, actionFrom}}));
}

// Check for updates, join by number

void KZPreference::onHandleCheckForUpdates(const QString& actionFrom) {
  checkForUpdates(UpdateCheck::ByUser, Q_FUNC_INFO, actionFrom);
}

void KZPreference::onHandleCheckForUpdatesAutomatically() {
  checkForUpdates(UpdateCheck::Automatic, Q_FUNC_INFO, QString());
}

void KZPreference::checkForUpdates(UpdateCheck kind, const char* method, const QString& actionFrom) {
  MVRNSInfoTraceIMPL("KZPreference", "%s", method);
  const bool isByUser = kind == UpdateCheck::ByUser;
  KZUtility& utility = KZUtility::sharedInstance();
  if (utility.isCheckForUpdatesInProgress()) {
    MVRNSWarningTraceIMPL("KZPreference", "%s, check for updates is in progress", method);
    return;
  }
  // Set before the site is checked, and still set when there is none: the host clears it.
  if (isByUser) utility.setCheckForUpdatesInProgressFlag();

  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  const QString siteName = store.siteName();
  if (siteName.isEmpty()) {
    MVRNSWarningTraceIMPL("KZPreference", "%s, check for updates for empty site", method);
    return;
  }
  sendPluginCommand(isByUser ? KZCmdCheckForUpdates : KZCmdCheckForUpdatesAutomatically,
                    dictionaryWithPairs({{QStringLiteral("AppActionType"), QStringLiteral("CheckForUpdates")},
                                         {QRT_LoginResult_site, siteName},
                                         {QRT_LoginResult_cdnUrl, store.cdnUrl()}}));
  if (isByUser) writeTelemetryData(TelemetryValue_FeatureName_Click_CheckForUpdates, actionFrom);
}

void KZPreference::onHandleJoinByNumber(const QString& actionFrom) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  constexpr int requireJoinByNumber = 2;
  sendPluginCommand(KZCmdRequireLink, Dictionary{{QRT_Require_Link_Action_Type, requireJoinByNumber}});
  writeTelemetryData(TelemetryValue_FeatureName_Click_JoinByNumber, actionFrom);
}

void KZPreference::joinByNumber() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const QVariant link = KZUtility::sharedInstance().getKZMemCacheData(kPreferences_JoinByNumberLink);
  if (link.metaType() != QMetaType::fromType<QString>()) return;
  if (KZWorkspace::sharedWorkspace().openURL(QUrl(link.toString()))) return;
  MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "nothing opened the link %@", link);
}
