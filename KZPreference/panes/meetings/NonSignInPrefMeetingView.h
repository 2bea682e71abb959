#pragma once

#include "KZPreference/panes/meetings/MeetingsPane.h"
#include "KZPreference/panes/meetings/NonSignInCalendarIntegrationSubView.h"
#include "KZPreference/panes/meetings/NonSignInPrefMeetingView+Visible.h"

// The guest's Meetings pane: calendar days and calendar integration.
class NonSignInPrefMeetingView final : public MeetingsPane, public NonSignInPrefMeetingViewVisible {
  Q_OBJECT

 public:
  NonSignInPrefMeetingView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)  // not owned
      : MeetingsPane(frame) {
    const auto [calendarFrame, integrationFrame] = groupFrames(caculateIntegrationViewSize());
    addCalendarView(calendarFrame, actionDelegate);
    addIntegrationView(new NonSignInCalendarIntegrationSubView(integrationFrame, actionDelegate),
                       integrationFrame);
    addSplitLine("m_splitline", calendarFrame);
  }
};
