#pragma once

#include "KZPreference/windows/PreferenceWindowController.h"

class NonSignInPrefAccountView;

// The guest's window. It ignores calendar options and requests for a calendar other than Outlook.
class NonSignInPreferenceWindowController final : public PreferenceWindowController {
  Q_OBJECT

 public:
  explicit NonSignInPreferenceWindowController(PreferenceActionDelegateProtocol* delegate);  // not owned
  ~NonSignInPreferenceWindowController() override;

  void refreshPreference() override;

 protected:
  PaneSizes paneSizes() const override;
  View* createGeneralView(const Frame& frame) override;
  View* createAccountView(const Frame& frame) override;
  MeetingsPane* createMeetingView(const Frame& frame) override;
  void registerMeetingView(MeetingsPane* view) override;

 private:
  NonSignInPrefAccountView* m_guestAccountView = nullptr;
};
