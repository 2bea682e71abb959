#include "KZPreference/panes/meetings/PrefMeetingView.h"

#include "KZPreference/calendar/CalendarIntegrationSubView.h"
#include "KZPreference/layout/PrefsViewDefine.h"
#include "KZPreference/panes/meetings/CalendarSubView.h"
#include "KZPreference/panes/meetings/MeetingSubView.h"
#include "host/KZUIExtension/SplitLineView.h"
#include "platform/FrameLayout.h"

namespace {

// What one more source needs in the calendar integration group.
constexpr double kSourceRow = 26;

}  // namespace

PrefMeetingView::PrefMeetingView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : MeetingsPane(frame) {
  initSubviews(actionDelegate);
}

void PrefMeetingView::initSubviews(PreferenceActionDelegateProtocol* actionDelegate) {
  const Size meeting = caculateMeetingSubViewSize();
  const Size calendar = caculateCalendarViewSize();
  const Size integration = caculateIntegrationViewSize();
  const Frame integrationFrame{0, marginAtBottomEdge, integration.width, integration.height};
  const Frame calendarFrame{0, integrationFrame.maxY() + marginBetweenSubViews, calendar.width,
                            calendar.height};
  const Frame meetingFrame{0, calendarFrame.maxY() + marginBetweenSubViews, meeting.width, meeting.height};

  m_meetingView = new MeetingSubView(meetingFrame, actionDelegate);
  m_meetingView->setObjectName(QStringLiteral("m_meetingView"));
  addSubview(this, m_meetingView, meetingFrame);
  addCalendarView(calendarFrame, actionDelegate);
  m_integrationView = new CalendarIntegrationSubView(integrationFrame, actionDelegate);
  addIntegrationView(m_integrationView, integrationFrame, QStringLiteral("m_integrationView"));
  m_splitline1 = addSplitLine(QStringLiteral("m_splitline1"), meetingFrame);
  m_splitline2 = addSplitLine(QStringLiteral("m_splitline2"), calendarFrame);
}

void PrefMeetingView::setPmrurl(const QString& pmrurl, const QString& sipurl) {
  m_meetingView->setPMRUrl(pmrurl, sipurl);
}

void PrefMeetingView::setCalendarIntergrationOption(const KZCalendarIntegrationOption& option) {
  relayoutCalendarView(option);
  m_integrationView->setCalendarIntergrationOption(option);
}

void PrefMeetingView::relayoutCalendarView(const KZCalendarIntegrationOption& option) {
  const double growth = (option.isEnableNone ? kSourceRow : 0) + (option.isEnableGoogle ? kSourceRow : 0);
  const auto raise = [growth](QWidget* view) {
    Frame frame = frameOf(view);
    frame.y += growth;
    setFrame(view, frame);
  };
  const auto grow = [growth](QWidget* view) {
    Frame frame = frameOf(view);
    frame.height += growth;
    setFrame(view, frame);
  };
  grow(this);
  raise(m_meetingView);
  raise(m_calendarView);
  grow(m_integrationView);
  raise(m_splitline1);
  raise(m_splitline2);
}
