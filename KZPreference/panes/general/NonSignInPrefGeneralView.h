#pragma once

#include "KZPreference/panes/general/NonSignInPrefGeneralView+Visible.h"
#include "KZPreference/panes/general/StartAtLoginView.h"

// The guest's General pane: start at login.
class NonSignInPrefGeneralView final : public StartAtLoginView, public NonSignInPrefGeneralViewVisible {
  Q_OBJECT

 public:
  NonSignInPrefGeneralView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate)
      : StartAtLoginView(frame, actionDelegate) {
    initCheckingStartState();
    initStartCheckingCheckbox(rectCheckStartingButton(), startCheckingString());
  }

 private:
  Frame rectCheckStartingButton() const { return checkboxFrame(marginAtBottomEdge); }
};
