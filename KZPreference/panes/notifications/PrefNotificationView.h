#pragma once

#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "KZPreference/panes/notifications/PrefNotificationView+Visible.h"
#include "platform/View.h"

class MeetingAlertsSubView;
class PopUpButton;
class QCheckBox;

// The Notifications pane: one row, for meeting notifications.
class PrefNotificationView final : public View, public PrefNotificationViewVisible {
  Q_OBJECT

 public:
  PrefNotificationView(const Frame& frame, PreferenceActionDelegateProtocol* actionDelegate);  // not owned

  void setPreference(const Content& preference);

  // Each writes the sender's value to the store under its key of older versions. No control calls them.
  void onMeetingAlertsButton(const QCheckBox* sender);
  void onMeetingAlertsMinutesButton(const PopUpButton* sender);
  void onSnoozeButton(const QCheckBox* sender);
  void onSnoozeMinutesButton(const PopUpButton* sender);
  void onMeetingCardButton(const QCheckBox* sender);
  void onMeetingCardMinutesButton(const PopUpButton* sender);

 private:
  void initSubviews();

  PreferenceActionDelegateProtocol* m_actionDelegate;
  MeetingAlertsSubView* m_meetingAlertsView = nullptr;
};
