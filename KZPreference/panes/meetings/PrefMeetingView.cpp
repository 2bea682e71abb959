#include "KZPreference/panes/meetings/PrefMeetingView.h"

#include "KZPreference/layout/PrefsViewDefine.h"
#include "KZPreference/panes/meetings/CalendarSubView.h"
#include "KZPreference/panes/meetings/MeetingSubView.h"
#include "host/KZUIExtension/SplitLineView.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/FrameLayout.h"

PrefMeetingView::PrefMeetingView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
    : MeetingsPane(frame) {
  initSubviews(actionDelegate);
}

void PrefMeetingView::initSubviews(PreferenceActionDelegateProtocol* actionDelegate) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const Size meeting = caculateMeetingSubViewSize();
  const auto [calendarFrame, integrationFrame] = groupFrames(caculateIntegrationViewSize());
  const Frame meetingFrame{0, calendarFrame.maxY() + marginBetweenSubViews, meeting.width, meeting.height};

  m_meetingView = new MeetingSubView(meetingFrame, actionDelegate);
  m_meetingView->setObjectName(QStringLiteral("m_meetingView"));
  addSubview(this, m_meetingView, meetingFrame);
  addCalendarView(calendarFrame, actionDelegate);
  m_integrationView = new CalendarIntegrationSubView(integrationFrame, actionDelegate);
  addIntegrationView(m_integrationView, integrationFrame);
  m_splitline1 = addSplitLine("m_splitline1", meetingFrame);
  m_splitline2 = addSplitLine("m_splitline2", calendarFrame);
}

void PrefMeetingView::setPmrurl(const QString& pmrurl, const QString& sipurl) {
  m_meetingView->setPMRUrl(pmrurl, sipurl);
}

void PrefMeetingView::setCalendarIntergrationOption(const KZCalendarIntegrationOption& option) {
  relayoutCalendarView(option);
  m_integrationView->setCalendarIntergrationOption(option);
}

void PrefMeetingView::relayoutCalendarView(const KZCalendarIntegrationOption& option) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  const int sources = int(option.isEnableNone) + int(option.isEnableGoogle);
  const double growth = sources * CalendarIntegrationGroup::sourceRowPitch;
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
