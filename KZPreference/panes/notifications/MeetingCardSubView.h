#pragma once

#include "KZPreference/panes/notifications/MeetingCardSubView+Visible.h"
#include "KZPreference/panes/notifications/NotificationRow.h"

// The row for the dashboard's card of the next meeting.
class MeetingCardSubView final : public NotificationRow, public MeetingCardSubViewVisible {
  Q_OBJECT

 public:
  MeetingCardSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);

 protected:
  void report(bool state, const QString& minutes) override;
};
