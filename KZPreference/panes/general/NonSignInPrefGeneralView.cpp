#include "KZPreference/panes/general/NonSignInPrefGeneralView.h"

#include "KZPreference/layout/PrefsViewDefine.h"

NonSignInPrefGeneralView::NonSignInPrefGeneralView(const Frame& frame,
                                                   PreferenceActionDelegateProtocol* actionDelegate)
    : StartAtLoginView(frame, actionDelegate) {
  initCheckingStartState();
  initStartCheckingCheckbox(rectCheckStartingButton(), startCheckingString());
}

Frame NonSignInPrefGeneralView::rectCheckStartingButton() const {
  return checkboxFrame(marginAtBottomEdge);
}
