#pragma once

#include "KZPreference/panes/notifications/MeetingAlertsSubView+Visible.h"
#include "KZPreference/panes/notifications/NotificationRow.h"

// The row for meeting notifications.
class MeetingAlertsSubView final : public NotificationRow, public MeetingAlertsSubViewVisible {
  Q_OBJECT

 public:
  MeetingAlertsSubView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);

 protected:
  void report(bool state, const QString& minutes) override;
  void reportClick(bool state) override;
  void reportMinutes(const QString& minutes) override;
};
