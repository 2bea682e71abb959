#include "KZPreference/core/KZPreference.h"

#include <QUrl>
#include <algorithm>
#include <array>
#include <span>

#include "KZPreference/authentication/ADAuthenticationWrapper.h"
#include "KZPreference/authentication/OLAccountAuthenticator.h"
#include "KZPreference/contract/PreferenceTelemetry.h"
#include "KZPreference/core/PreferenceActionDelegate.h"
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

struct KZPreference::HandlerTables {
  static constexpr auto commands = std::to_array<CommandHandler>({
      {KZCmdInitGuestPreference, &KZPreference::initGuestPreference},
      {KZCmdShowPreference, &KZPreference::showAppPreference},
      {KZCmdDestroyPreference, &KZPreference::destroyAppPreference},
      {KZCmdCheckForUpdates, &KZPreference::onHandleCheckForUpdates},
      {KZCmdCheckForUpdatesAutomatically, &KZPreference::onHandleCheckForUpdatesAutomatically},
      {KZCmdJoinByNumber, &KZPreference::onHandleJoinByNumber},
      {KZCmdRequireChangeCalendarIntegration, &KZPreference::onChangeCalenderIntegrationRequiring},
      {KZCmdProximity, &KZPreference::onProximityCommand},
      {KZCmdGetExchOnlineToken, &KZPreference::onGetExchonlineToken},
  });
  static constexpr auto notifications = std::to_array<NotifyHandler>({
      {KZNotifyGetPreferenceDone, &KZPreference::onGetPreferenceDone},
      {KZNotifyCheckForUpdatesDone, &KZPreference::onCheckForUpdatesDone},
      {KZNotifyRefreshPreferenceDone, &KZPreference::onRefreshPreferenceDone},
      {KZNotifyResolveExchangeDone, &KZPreference::onResolveExchangeDone},
      {KZNotifyO365LoginRequesting, &KZPreference::onO365LoginRequesting},
      {KZNotifyExchangeResolvingNeedCredential, &KZPreference::onExchangeResolvingNeedCredential},
  });
};

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
}

KZPreference::~KZPreference() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  PreferenceTelemetry::sharedInstance().setTelemetryDelegate(nullptr);
  m_ADAuthWrapper->setExchangeResolveResultReceiver(nullptr);
  for (const auto& controller : m_retiredControllers) delete controller;
}

quint64 KZPreference::onHandleOtherPluginsTriggerCommand(quint64 command, const Content& content) {
  const auto* handler =
      std::ranges::find(HandlerTables::commands, static_cast<KZCommand>(command), &CommandHandler::number);
  if (handler == HandlerTables::commands.end()) return 0;
  Request request{.content = content, .actionFrom = TelemetryValue_ActionFrom_Outlook};
  const QString actionFrom = textValue(request.dictionary(), TelemetryKey_ActionFrom);
  if (isEqualText(actionFrom, TelemetryValue_ActionFrom_APP)) request.actionFrom = actionFrom;
  (this->*handler->handle)(request);
  return 0;
}

quint64 KZPreference::onHandleServicesNotification(const KZEventIdentify& event, const Content& content) {
  const auto* handler =
      std::ranges::find(HandlerTables::notifications, static_cast<KZNotify>(event.m_componentEventIndex),
                        &NotifyHandler::index);
  if (handler != HandlerTables::notifications.end()) (this->*handler->handle)(content.value_or(Dictionary()));
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

void KZPreference::onHandleCheckForUpdates(const Request& request) {
  checkForUpdates(UpdateCheck::ByUser, Q_FUNC_INFO, request.actionFrom);
}

void KZPreference::onHandleCheckForUpdatesAutomatically(const Request& request) {
  checkForUpdates(UpdateCheck::Automatic, Q_FUNC_INFO, request.actionFrom);
}

void KZPreference::checkForUpdates(UpdateCheck kind, const char* method, const QString& actionFrom) {
  MVRNSInfoTraceIMPL("KZPreference", "%s", method);
  const bool isByUser = kind == UpdateCheck::ByUser;
  KZUtility& utility = KZUtility::sharedInstance();
  if (utility.isCheckForUpdatesInProgress()) {
    MVRNSWarningTraceIMPL("KZPreference", "%s, check for updates is in progress", method);
    return;
  }
  // Set before anything is checked, and left set when there is no site: the host clears it.
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

void KZPreference::onHandleJoinByNumber(const Request& request) {
  constexpr int requireJoinByNumber = 2;
  sendPluginCommand(KZCmdRequireLink, Dictionary{{QRT_Require_Link_Action_Type, requireJoinByNumber}});
  writeTelemetryData(TelemetryValue_FeatureName_Click_JoinByNumber, request.actionFrom);
}

void KZPreference::joinByNumber() {
  const QVariant link = KZUtility::sharedInstance().getKZMemCacheData(kPreferences_JoinByNumberLink);
  if (link.metaType() != QMetaType::fromType<QString>()) return;
  KZWorkspace::sharedWorkspace().openURL(QUrl(link.toString()));
}

// Calendar and proximity requests

void KZPreference::onChangeCalenderIntegrationRequiring(const Request& request) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "Content:%@", request.content);
  ensuredWindowController().requireToChangeCalendarIntegration(request.dictionary());
}

void KZPreference::onProximityCommand(const Request& request) {
  // The object counts, not its text: only the host's own constant means this command.
  const QString command = textValue(request.dictionary(), kproximityCommand);
  if (command.constData() == kstartDetectVD.constData()) onEnableProximityAutoDetect();
}

void KZPreference::onEnableProximityAutoDetect() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  ensuredWindowController().requireEnableProximityAutoDetect();
}
