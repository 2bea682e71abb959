#pragma once

#include "KZPreference/panes/meetings/CalendarIntegrationSubView.h"
#include "KZPreference/windows/PreferenceWindowController.h"

// The signed-in user's window.
class SignInPreferenceWindowController final : public PreferenceWindowController {
  Q_OBJECT

 public:
  explicit SignInPreferenceWindowController(PreferenceActionDelegateProtocol* delegate);  // not owned
  ~SignInPreferenceWindowController() override;

  // Has no effect after the panes are created.
  void setCalendarIntergrationOption(const KZCalendarIntegrationOption& option) override;

 protected:
  PaneSizes paneSizes() const override;
  View* createGeneralView(const Frame& frame) override;
  View* createAccountView(const Frame& frame) override;
  MeetingsPane* createMeetingView(const Frame& frame) override;
  void registerMeetingView(MeetingsPane* view) override;
  void requireOtherCalendarSource() override;

 private:
  KZCalendarIntegrationOption m_intergrationOption;
};
