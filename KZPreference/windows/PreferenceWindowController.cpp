#include "KZPreference/windows/PreferenceWindowController.h"

#include <algorithm>

#include "KZPreference/layout/PrefsViewDefine.h"
#include "KZPreference/layout/Resources.h"
#include "KZPreference/panes/meetings/MeetingsPane.h"
#include "KZPreference/panes/notifications/PrefNotificationView.h"
#include "KZPreference/panes/videodevices/PrefProximityView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"

PreferenceWindowController::PreferenceWindowController(PreferenceActionDelegateProtocol* delegate)
    : m_prefsDelegate(delegate) {}

void PreferenceWindowController::initWithPreferenceActionDelegate() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "delegate:%@", m_prefsDelegate);
  initWithWindow();
  checkOutlookInstalled();
  setDefaultPreference();
}

void PreferenceWindowController::initWithWindow() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "window:%@", window());
}

void PreferenceWindowController::checkOutlookInstalled() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
}

void PreferenceWindowController::setDefaultPreference() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  setNotificationDefaultPreference();
  setVideoDeviceDefaultPreference();
}

void PreferenceWindowController::setNotificationDefaultPreference() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  const Dictionary settings =
      KZPlistFileHandle::sharedInstance().meetingNotification().value_or(Dictionary());
  if (settings.contains(kKZMeetintNotificationToastMinutes)) return;
  m_prefsDelegate->setMeetingAlerts(true, QStringLiteral("15"));
}

void PreferenceWindowController::setVideoDeviceDefaultPreference() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  Dictionary settings = store.videoDevice().value_or(Dictionary());
  if (settings.contains(kKZVideoDeviceAutodetect)) return;
  settings.insert(kKZVideoDeviceAutodetect, true);
  store.setVideoDevice(settings);
}

void PreferenceWindowController::setOLAccountAuthenticator(OLAccountAuthenticator* authenticator) {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "authenticator:%@", authenticator);
  m_olaccountAuthenticator = authenticator;
}

void PreferenceWindowController::setupToolbar() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  createPreferenceViews();
  const auto add = [this](View* view, const char* label, const char* image) {
    addView(view, localizedString(label), newPNGImageInThisBundle(QString::fromLatin1(image)));
  };
  add(m_generalView, "General", "preference_general");
  add(m_accountView, "Account", "preference_account");
  add(m_meetingView, "Meetings", "preference_meeting");
  add(m_notificationView, "Notifications", "preference_notification");
  add(m_proximityView, "Video devices", "preference_proximity");
}

void PreferenceWindowController::createPreferenceViews() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  const PaneSizes sizes = paneSizes();
  const Size notification = PrefNotificationView::caculateViewSize();
  const Size proximity = PrefProximityView::caculateViewSize();
  const double width =
      std::max({static_cast<double>(defaultPrefsViewWidth), sizes.general.width, sizes.account.width,
                sizes.meetings.width, notification.width, proximity.width});
  const auto frameFor = [width](const Size& size) {
    return Frame{.x = 0, .y = 0, .width = width, .height = size.height};
  };
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();

  m_generalView = createGeneralView(frameFor(sizes.general));
  m_accountView = createAccountView(frameFor(sizes.account));
  m_meetingView = createMeetingView(frameFor(sizes.meetings));
  m_notificationView = new PrefNotificationView(frameFor(notification), m_prefsDelegate);
  m_notificationView->setPreference(store.meetingNotification());
  m_proximityView = new PrefProximityView(frameFor(proximity), m_prefsDelegate);
  m_proximityView->setPreference(store.videoDevice());
  m_generalView->setObjectName(QStringLiteral("m_generalView"));
  m_accountView->setObjectName(QStringLiteral("m_accountView"));
  m_meetingView->setObjectName(QStringLiteral("m_meetingView"));
  m_notificationView->setObjectName(QStringLiteral("m_notificationView"));
  m_proximityView->setObjectName(QStringLiteral("m_proximityView"));
  registerMeetingView(m_meetingView);
}

void PreferenceWindowController::gotoAccountView() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  loadViewForIdentifier(localizedString("Account"), Animate::Yes);
}

void PreferenceWindowController::retire() {
  if (m_isRetired) return;
  m_isRetired = true;
  registerMeetingView(nullptr);
  if (m_meetingView) m_meetingView->setOLAccountAuthenticator(nullptr);
}

void PreferenceWindowController::refreshPreference() {}
void PreferenceWindowController::setCalendarIntergrationOption(const KZCalendarIntegrationOption&) {}
void PreferenceWindowController::requireOtherCalendarSource() {}

void PreferenceWindowController::windowDidBecomeKey() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  if (m_meetingView) m_meetingView->windowDidBecomeKey();
}

void PreferenceWindowController::windowWillClose() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  m_prefsDelegate->cancelSignIn();
  if (m_meetingView) m_meetingView->onWindowWillClose();
}

void PreferenceWindowController::onExchangeResolvingNeedCredential(const Dictionary& result) {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "result:%@", result);
  if (m_meetingView) m_meetingView->needOutlookCredential(result);
}

void PreferenceWindowController::onExchangeResolveDone(const Dictionary& result) {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "result:%@", result);
  if (m_meetingView) m_meetingView->onExchangeResolveDone(result);
  if (isEqualText(textValue(result, kKZResult), kKZSuccess))
    m_prefsDelegate->calendarIntergrationSourceChanged();
}

void PreferenceWindowController::requireToChangeCalendarIntegration(const Dictionary& requireInfo) {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "requireInfo:%@", requireInfo);
  const QString source = textValue(requireInfo, kKZCalendarIntegrationSource);
  if (!isEqualText(source, kKZCalendarIntegrationSourceOutlook)) return requireOtherCalendarSource();
  showWindow();
  loadViewForIdentifier(localizedString("Meetings"), Animate::Yes);
  if (m_meetingView) m_meetingView->setOpeningByDashboard();
}

void PreferenceWindowController::requireEnableProximityAutoDetect() {
  MVRNSInfoFuncTraceIMPL("KZPreference", {this, Q_FUNC_INFO}, "");
  const Dictionary settings{{kKZVideoDeviceAutodetect, true}};
  KZPlistFileHandle::sharedInstance().setVideoDevice(settings);
  if (m_proximityView) m_proximityView->setPreference(settings);
}
