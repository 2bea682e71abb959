#pragma once

#include "KZPreference/contract/CalendarPreferenceReceiver.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class CalendarIntegrationGroup;
class CalendarSubView;
class OLAccountAuthenticator;
class SplitLineView;

// What both Meetings panes share: the calendar groups, and the messages that go on to them.
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

  // Groups in the pane; each is named and added at its frame.
  void addCalendarView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);
  void addIntegrationView(CalendarIntegrationGroup* group, const Frame& frame, const QString& name);
  // In the middle of the gap below that group.
  SplitLineView* addSplitLine(const QString& name, const Frame& group);

  CalendarSubView* m_calendarView = nullptr;

 private:
  CalendarIntegrationGroup* m_group = nullptr;
};
