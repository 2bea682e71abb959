#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class CalendarIntegrationGroup;
class CalendarSubView;
class OLAccountAuthenticator;
class SplitLineView;

// The part that both Meetings panes share: the calendar groups, and the calls that are passed to them.
class MeetingsPane : public View, public CalendarPreferenceReceiver {
  Q_OBJECT

 public:
  void setOLAccountAuthenticator(OLAccountAuthenticator* authenticator);  // not owned
  void setCalendarPreference(const Dictionary& preference) override;
  void setOpeningByDashboard();
  void needOutlookCredential(const Dictionary& result);
  void onExchangeResolveDone(const Dictionary& result);
  void windowDidBecomeKey();
  void onWindowWillClose();

 protected:
  explicit MeetingsPane(const Frame& frame);

  struct GroupFrames {
    Frame calendar;
    Frame integration;
  };
  // The calendar group is above the integration group, which is at the bottom of the pane.
  static GroupFrames groupFrames(const Size& integration);

  void addCalendarView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);
  void addIntegrationView(CalendarIntegrationGroup* group, const Frame& frame);
  // In the middle of the gap below that group.
  SplitLineView* addSplitLine(const char* name, const Frame& group);

  CalendarSubView* m_calendarView = nullptr;

 private:
  CalendarIntegrationGroup* m_group = nullptr;
};
