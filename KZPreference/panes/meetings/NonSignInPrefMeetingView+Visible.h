#pragma once

#include "KZPreference/panes/meetings/PrefMeetingView+Visible.h"

// Texts and sizes of the guest's Meetings pane: the same texts, without the personal room.
class NonSignInPrefMeetingViewVisible : public PrefMeetingViewVisible {
 public:
  static Size caculateMeetingSubViewSize() = delete;
  static Size caculateIntegrationViewSize();
  static Size caculateViewSize();
};
