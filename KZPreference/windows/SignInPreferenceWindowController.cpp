#include "KZPreference/windows/SignInPreferenceWindowController.h"

#include "KZPreference/panes/account/PrefAccountView.h"
#include "KZPreference/panes/general/PrefGeneralView.h"
#include "KZPreference/panes/meetings/PrefMeetingView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"

SignInPreferenceWindowController::SignInPreferenceWindowController(PreferenceActionDelegateProtocol* delegate)
    : PreferenceWindowController(delegate) {
  initWithPreferenceActionDelegate();
}

SignInPreferenceWindowController::~SignInPreferenceWindowController() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  retire();
}

void SignInPreferenceWindowController::setCalendarIntergrationOption(
    const KZCalendarIntegrationOption& option) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_intergrationOption = option;
}

PreferenceWindowController::PaneSizes SignInPreferenceWindowController::paneSizes() const {
  return {.general = PrefGeneralView::caculatePrefGeneralViewSize(),
          .account = PrefAccountView::caculateViewSize(),
          .meetings = PrefMeetingView::caculateViewSize()};
}

View* SignInPreferenceWindowController::createGeneralView(const Frame& frame) {
  return new PrefGeneralView(frame, m_prefsDelegate);
}

View* SignInPreferenceWindowController::createAccountView(const Frame& frame) {
  return new PrefAccountView(frame, m_prefsDelegate);
}

MeetingsPane* SignInPreferenceWindowController::createMeetingView(const Frame& frame) {
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  const Dictionary info = store.preferenceInfo().value_or(Dictionary());
  auto* view = new PrefMeetingView(frame, m_prefsDelegate);
  view->setOLAccountAuthenticator(m_olaccountAuthenticator);
  view->setPmrurl(textValue(info, QRT_Preference_PMRUrl), textValue(info, QRT_Preference_PMRSipUrl));
  view->setCalendarIntergrationOption(m_intergrationOption);
  view->setCalendarPreference(store.calendarIntegration().value_or(Dictionary()));
  return view;
}

void SignInPreferenceWindowController::registerMeetingView(MeetingsPane* view) {
  m_prefsDelegate->setPrefMeetingView(view);
}

void SignInPreferenceWindowController::requireOtherCalendarSource() {
  m_prefsDelegate->setCalendarIntegrationSource(kKZCalendarIntegrationSourceMivRa);
  m_prefsDelegate->calendarIntergrationSourceChanged();
}
