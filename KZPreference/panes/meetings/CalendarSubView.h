#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "platform/View.h"

class PopUpButton;

// How many days the meetings list shows.
class CalendarSubView final : public View {
  Q_OBJECT

 public:
  CalendarSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  void setCalendarPreference(const Dictionary& preference);

 private:
  void initCalendarLebel();
  void initDays();
  void onDaysButton();

  PreferenceActionDelegateProtocol* m_actionDelegate;
  PopUpButton* m_daysBtn = nullptr;
};
