#include "KZPreference/panes/meetings/MeetingsPane.h"

#include "KZPreference/calendar/CalendarIntegrationGroup.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "KZPreference/panes/meetings/CalendarSubView.h"
#include "host/KZUIExtension/SplitLineView.h"
#include "platform/FrameLayout.h"

namespace {

constexpr double kSplitLineInset = 24;

}  // namespace

MeetingsPane::MeetingsPane(const Frame& frame) : View(frame) {}

void MeetingsPane::addCalendarView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate) {
  m_calendarView = new CalendarSubView(frame, actionDelegate);
  m_calendarView->setObjectName(QStringLiteral("m_calendarView"));
  addSubview(this, m_calendarView, frame);
}

void MeetingsPane::addIntegrationView(CalendarIntegrationGroup* group, const Frame& frame,
                                      const QString& name) {
  m_group = group;
  m_group->setObjectName(name);
  addSubview(this, m_group, frame);
}

SplitLineView* MeetingsPane::addSplitLine(const QString& name, const Frame& group) {
  auto* line = new SplitLineView;
  line->setObjectName(name);
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
