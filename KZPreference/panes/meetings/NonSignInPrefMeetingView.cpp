#include "KZPreference/panes/meetings/NonSignInPrefMeetingView.h"

#include "KZPreference/calendar/NonSignInCalendarIntegrationSubView.h"
#include "KZPreference/layout/PrefsViewDefine.h"

NonSignInPrefMeetingView::NonSignInPrefMeetingView(const Frame& frame,
                                                   PreferenceActionDelegateProtocol* actionDelegate)
    : MeetingsPane(frame) {
  initSubviews(actionDelegate);
}

void NonSignInPrefMeetingView::initSubviews(PreferenceActionDelegateProtocol* actionDelegate) {
  const Size calendar = caculateCalendarViewSize();
  const Size integration = caculateIntegrationViewSize();
  const Frame integrationFrame{0, marginAtBottomEdge, integration.width, integration.height};
  const Frame calendarFrame{0, integrationFrame.maxY() + marginBetweenSubViews, calendar.width,
                            calendar.height};

  addCalendarView(calendarFrame, actionDelegate);
  addIntegrationView(new NonSignInCalendarIntegrationSubView(integrationFrame, actionDelegate),
                     integrationFrame, QStringLiteral("m_integrationView"));
  addSplitLine(QStringLiteral("m_splitline"), calendarFrame);
}
