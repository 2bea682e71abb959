#include "KZPreference/authentication/ADAuthenticationWrapper.h"
#include "KZPreference/core/KZPreference.h"
#include "KZPreference/core/PreferenceActionDelegate.h"
#include "KZPreference/layout/Resources.h"
#include "KZPreference/windows/NonSignInPreferenceWindowController.h"
#include "KZPreference/windows/SignInPreferenceWindowController.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZUtility.h"

// Window controller

void KZPreference::installWindowController(std::unique_ptr<PreferenceWindowController> controller) {
  m_preferenceWindowController = std::move(controller);
  m_preferenceWindowController->setOLAccountAuthenticator(m_olaccountAuthenticator.get());
  m_ADAuthWrapper->setExchangeResolveResultReceiver(m_preferenceWindowController.get());
}

// Always the signed-in variant, even when the previous one was the guest's.
PreferenceWindowController& KZPreference::ensuredWindowController() {
  if (!m_preferenceWindowController) {
    installWindowController(
        std::make_unique<SignInPreferenceWindowController>(m_preferenceActionDelegate.get()));
  }
  return *m_preferenceWindowController;
}

void KZPreference::initGuestPreference() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_ADAuthWrapper->cancelSignIn();
  if (m_preferenceWindowController) destroyAppPreference();
  installWindowController(
      std::make_unique<NonSignInPreferenceWindowController>(m_preferenceActionDelegate.get()));
}

void KZPreference::showAppPreference(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  PreferenceWindowController& controller = ensuredWindowController();
  controller.refreshPreference();
  controller.showWindow();
  const QString viewType = textValue(content.value_or(Dictionary()), kOpenPrefsViewType);
  if (isEqualText(viewType, kPrefsAccountView)) controller.gotoAccountView();
}

void KZPreference::destroyAppPreference() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_ADAuthWrapper->cancelSignIn();
  const PreferenceWindowController* const closing = m_preferenceWindowController.get();
  if (!closing) return;
  m_ADAuthWrapper->setExchangeResolveResultReceiver(nullptr);
  m_preferenceWindowController->close();
  // The panes send commands while they close, and the host may respond with another destroy command.
  if (m_preferenceWindowController.get() != closing) return;
  m_preferenceWindowController->retire();
  // The host may send this command from within an event of the window, so the controller is deleted later.
  std::erase_if(m_retiredControllers, [](const auto& controller) { return controller.isNull(); });
  m_retiredControllers.emplace_back(m_preferenceWindowController.get());
  m_preferenceWindowController.release()->deleteLater();
}

void KZPreference::onChangeCalenderIntegrationRequiring(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "Content:%@", content);
  ensuredWindowController().requireToChangeCalendarIntegration(content.value_or(Dictionary()));
}

void KZPreference::onEnableProximityAutoDetect() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  ensuredWindowController().requireEnableProximityAutoDetect();
}

// Preference record

void KZPreference::onGetPreferenceDone(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  const Dictionary data = content.value_or(Dictionary());
  if (isActionFailed(data)) return showErrorMessage(data);

  const Dictionary record = dictionaryValue(data, QStringLiteral("kz"));
  savePreferenceInfo(record);
  ensuredWindowController().setCalendarIntergrationOption(
      {.isEnableNone = isSet(record, QStringLiteral("disableCalendarIntegration")),
       .isEnableMivra = true,
       .isEnableGoogle = isSet(record, QStringLiteral("enableListGoogleCalendarMeeting")),
       .isEnableOutlook = true});

  const Dictionary info = dictionaryFromJson(textValue(record, QStringLiteral("customInfo")));
  const QString action = textValue(info, QStringLiteral("AppActionType"));
  if (isEqualText(action, AppActionType_JoinByNumber)) return joinByNumber();
  if (action == QLatin1String("RequireEditSetting")) showAppPreference(content);
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

// Here the content itself is the record; in onGetPreferenceDone the record is below "kz".
void KZPreference::onRefreshPreferenceDone(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  const Dictionary record = content.value_or(Dictionary());
  savePreferenceInfo(record);
  if (myWindowController) myWindowController->onRefreshDone(record);
}

void KZPreference::onCheckForUpdatesDone(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  const Dictionary result = content.value_or(Dictionary());
  if (!isActionFailed(result)) return;
  KZUtility::sharedInstance().cleanCheckForUpdatesInProgressFlag();
  showErrorMessage(result);
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
