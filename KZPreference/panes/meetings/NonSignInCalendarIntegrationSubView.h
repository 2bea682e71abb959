#pragma once

#include "KZPreference/panes/meetings/CalendarIntegrationGroup.h"

// The guest's calendar integration: Outlook only.
class NonSignInCalendarIntegrationSubView final : public CalendarIntegrationGroup {
  Q_OBJECT

 public:
  NonSignInCalendarIntegrationSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);

  void setCalendarPreference(const Dictionary& preference) override;

 protected:
  void initRadioButtons() override;
  void reportSourceOnClose(bool isApplied) override;
};
