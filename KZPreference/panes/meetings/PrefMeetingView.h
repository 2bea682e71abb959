#pragma once

#include "KZPreference/contract/KZCalendarIntegrationOption.h"
#include "KZPreference/layout/PrefMeetingView+Visible.h"
#include "KZPreference/panes/meetings/MeetingsPane.h"

class CalendarIntegrationSubView;
class MeetingSubView;

// The signed-in Meetings pane: personal room, calendar days, calendar integration.
class PrefMeetingView final : public MeetingsPane, public PrefMeetingViewVisible {
  Q_OBJECT

 public:
  PrefMeetingView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  void setPmrurl(const QString& pmrurl, const QString& sipurl);
  // The pane grows with every record that offers more than two sources; it never shrinks.
  void setCalendarIntergrationOption(const KZCalendarIntegrationOption& option);

 private:
  void initSubviews(PreferenceActionDelegateProtocol* actionDelegate);
  void relayoutCalendarView(const KZCalendarIntegrationOption& option);

  MeetingSubView* m_meetingView = nullptr;
  CalendarIntegrationSubView* m_integrationView = nullptr;
  SplitLineView* m_splitline1 = nullptr;
  SplitLineView* m_splitline2 = nullptr;
};
