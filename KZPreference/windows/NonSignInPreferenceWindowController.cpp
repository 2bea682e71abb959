#include "KZPreference/windows/NonSignInPreferenceWindowController.h"

#include "KZPreference/panes/account/NonSignInPrefAccountView.h"
#include "KZPreference/panes/general/NonSignInPrefGeneralView.h"
#include "KZPreference/panes/meetings/NonSignInPrefMeetingView.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"

NonSignInPreferenceWindowController::NonSignInPreferenceWindowController(
    PreferenceActionDelegateProtocol* delegate)
    : PreferenceWindowController(delegate) {
  initWithPreferenceActionDelegate();
}

NonSignInPreferenceWindowController::~NonSignInPreferenceWindowController() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  retire();
}

void NonSignInPreferenceWindowController::refreshPreference() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  if (m_guestAccountView) m_guestAccountView->refreshAccountInfo();
}

PreferenceWindowController::PaneSizes NonSignInPreferenceWindowController::paneSizes() const {
  return {.general = NonSignInPrefGeneralView::caculatePrefGeneralViewSize(),
          .account = NonSignInPrefAccountView::caculateViewSize(),
          .meetings = NonSignInPrefMeetingView::caculateViewSize()};
}

View* NonSignInPreferenceWindowController::createGeneralView(const Frame& frame) {
  return new NonSignInPrefGeneralView(frame, m_prefsDelegate);
}

View* NonSignInPreferenceWindowController::createAccountView(const Frame& frame) {
  m_guestAccountView = new NonSignInPrefAccountView(frame, m_prefsDelegate);
  return m_guestAccountView;
}

MeetingsPane* NonSignInPreferenceWindowController::createMeetingView(const Frame& frame) {
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  auto* view = new NonSignInPrefMeetingView(frame, m_prefsDelegate);
  view->setOLAccountAuthenticator(m_olaccountAuthenticator);
  view->setCalendarPreference(store.calendarIntegration().value_or(Dictionary()));
  return view;
}

void NonSignInPreferenceWindowController::registerMeetingView(MeetingsPane* view) {
  m_prefsDelegate->setNonSignInPrefMeetingView(view);
}
