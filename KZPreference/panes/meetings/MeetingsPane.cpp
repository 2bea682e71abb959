#include "KZPreference/panes/meetings/MeetingsPane.h"

#include "KZPreference/layout/PrefsViewDefine.h"
#include "KZPreference/panes/meetings/CalendarIntegrationGroup.h"
#include "KZPreference/panes/meetings/CalendarSubView.h"
#include "KZPreference/panes/meetings/PrefMeetingView+Visible.h"
#include "host/KZUIExtension/SplitLineView.h"
#include "platform/FrameLayout.h"

namespace {

constexpr double kSplitLineInset = 24;

}  // namespace

MeetingsPane::MeetingsPane(const Frame& frame) : View(frame) {}

MeetingsPane::GroupFrames MeetingsPane::groupFrames(const Size& integration) {
  const Size calendar = PrefMeetingViewVisible::caculateCalendarViewSize();
  const Frame below{0, marginAtBottomEdge, integration.width, integration.height};
  return {.calendar = {0, below.maxY() + marginBetweenSubViews, calendar.width, calendar.height},
          .integration = below};
}

void MeetingsPane::addCalendarView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate) {
  m_calendarView = new CalendarSubView(frame, actionDelegate);
  m_calendarView->setObjectName(QStringLiteral("m_calendarView"));
  addSubview(this, m_calendarView, frame);
}

void MeetingsPane::addIntegrationView(CalendarIntegrationGroup* group, const Frame& frame) {
  m_group = group;
  m_group->setObjectName(QStringLiteral("m_integrationView"));
  addSubview(this, m_group, frame);
}

SplitLineView* MeetingsPane::addSplitLine(const char* name, const Frame& group) {
  auto* line = new SplitLineView;
  line->setObjectName(QLatin1String(name));
  constexpr int halfGap = marginBetweenSubViews / 2;
  addSubview(this, line, {kSplitLineInset, group.y - halfGap, frameOf(this).width - 2 * kSplitLineInset, 1});
  return line;
}

void MeetingsPane::setOLAccountAuthenticator(OLAccountAuthenticator* authenticator) {
  m_group->setOLAccountAuthenticator(authenticator);
}

void MeetingsPane::setCalendarPreference(const Dictionary& preference) {
  m_calendarView->setCalendarPreference(preference);
  m_group->setCalendarPreference(preference);
}

void MeetingsPane::setOpeningByDashboard() {
  m_group->setOpeningByDashboard();
}
void MeetingsPane::needOutlookCredential(const Dictionary& result) {
  m_group->needOutlookCredential(result);
}
void MeetingsPane::onExchangeResolveDone(const Dictionary& result) {
  m_group->onExchangeResolveDone(result);
}
void MeetingsPane::windowDidBecomeKey() {
  m_group->windowDidBecomeKey();
}
void MeetingsPane::onWindowWillClose() {
  m_group->onWindowWillClose();
}
