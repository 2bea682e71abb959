#pragma once

#include "KZPreference/layout/PrefMeetingView+Visible.h"
#include "KZPreference/panes/meetings/MeetingsPane.h"

// The guest's Meetings pane: calendar days and calendar integration.
class NonSignInPrefMeetingView final : public MeetingsPane, public NonSignInPrefMeetingViewVisible {
  Q_OBJECT

 public:
  NonSignInPrefMeetingView(const Frame& frame,
                           PreferenceActionDelegateProtocol* actionDelegate);  // not owned

 private:
  void initSubviews(PreferenceActionDelegateProtocol* actionDelegate);
};
