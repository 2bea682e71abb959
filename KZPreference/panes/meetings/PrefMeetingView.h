#pragma once

#include "KZPreference/panes/meetings/CalendarIntegrationSubView.h"
#include "KZPreference/panes/meetings/MeetingsPane.h"
#include "KZPreference/panes/meetings/PrefMeetingView+Visible.h"

class MeetingSubView;

// The signed-in Meetings pane: personal room, calendar days, calendar integration.
class PrefMeetingView final : public MeetingsPane, public PrefMeetingViewVisible {
  Q_OBJECT

 public:
  PrefMeetingView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  void setPmrurl(const QString& pmrurl, const QString& sipurl);
  // Each call makes the pane taller by a row for None and one for Google where they are enabled.
  void setCalendarIntergrationOption(const KZCalendarIntegrationOption& option);

 private:
  void initSubviews(PreferenceActionDelegateProtocol* actionDelegate);
  void relayoutCalendarView(const KZCalendarIntegrationOption& option);

  MeetingSubView* m_meetingView = nullptr;
  CalendarIntegrationSubView* m_integrationView = nullptr;
  SplitLineView* m_splitline1 = nullptr;
  SplitLineView* m_splitline2 = nullptr;
};
