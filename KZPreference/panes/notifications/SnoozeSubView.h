#pragma once

#include "KZPreference/panes/notifications/NotificationRow.h"
#include "KZPreference/panes/notifications/SnoozeSubView+Visible.h"

// The row for snoozing a notification.
class SnoozeSubView final : public NotificationRow, public SnoozeSubViewVisible {
  Q_OBJECT

 public:
  SnoozeSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);

 protected:
  void report(bool state, const QString& minutes) override;
};
