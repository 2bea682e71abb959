#include <QCheckBox>
#include <QTest>

#include "KZPreference/core/PreferenceActionDelegate.h"
#include "KZPreference/panes/notifications/MeetingAlertsSubView.h"
#include "KZPreference/panes/notifications/MeetingCardSubView.h"
#include "KZPreference/panes/notifications/PrefNotificationView.h"
#include "KZPreference/panes/notifications/SnoozeSubView.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/PopUpButton.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

Dictionary storedNotification() {
  return KZPlistFileHandle::sharedInstance().meetingNotification().value_or(Dictionary());
}

class NotificationRowsTest : public RecordingHost {
 protected:
  NotificationRowsTest() { KZPlistFileHandle::sharedInstance().setMeetingNotification({}); }

  static PopUpButton* minutesOf(QWidget& row) { return row.findChild<PopUpButton*>(); }
  static QCheckBox* boxOf(QWidget& row) { return row.findChild<QCheckBox*>(); }
  static void choose(PopUpButton* button, Qt::Key key) {
    button->setFocus();
    QTest::keyClick(button, key);
  }
  // Uses the controls of a row of that class, and checks the shown and the stored values.
  template <typename Row>
  void use(const QStringList& items, const QString& stateKey, const QString& minutesKey) {
    Row row({0, 0, 300, 48}, &m_delegate);
    row.show();
    EXPECT_FALSE(boxOf(row)->isChecked());
    EXPECT_EQ(minutesOf(row)->title(), items.first());
    QStringList shown;
    for (int item = 0; item < minutesOf(row)->count(); ++item) shown.append(minutesOf(row)->itemText(item));
    EXPECT_EQ(shown, items);

    row.setPreference(Dictionary{{minutesKey, "45"}});
    QTest::mouseClick(boxOf(row), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_FALSE(minutesOf(row)->isEnabled());
    EXPECT_EQ(storedNotification(), (Dictionary{{stateKey, false}, {minutesKey, "45"}}));
    row.setPreference(std::nullopt);
    EXPECT_TRUE(boxOf(row)->isChecked());
    choose(minutesOf(row), Qt::Key_End);
    EXPECT_EQ(storedNotification(), (Dictionary{{stateKey, true}, {minutesKey, items.last()}}));
    KZPlistFileHandle::sharedInstance().setMeetingNotification({});
  }

  CoreSender m_sender{m_core};
  PreferenceActionDelegate m_delegate{&m_sender};
};

TEST_F(NotificationRowsTest, EachRowReportsBothItsValues) {
  use<SnoozeSubView>({"3", "5", "10", "15"}, kKZMeetintNotificationSnooze,
                     kKZMeetintNotificationSnoozeMinutes);
  use<MeetingCardSubView>({"3", "5", "10", "15"}, kKZMeetintNotificationCard,
                          kKZMeetintNotificationCardMinutes);
  EXPECT_EQ(takeSent(), QStringList());
  use<MeetingAlertsSubView>({"5", "10", "15"}, kKZMeetintNotificationToast,
                            kKZMeetintNotificationToastMinutes);
  const QStringList sent = takeSent();
  ASSERT_EQ(sent.size(), 2);
  EXPECT_TRUE(sent[0].contains(R"("TelemetryKey_Boolean":"TelemetryValue_BooleanFalse")"))
      << qPrintable(sent[0]);
  EXPECT_TRUE(sent[1].contains(R"("TelemetryKey_MeetingAlertMinutes":"15")")) << qPrintable(sent[1]);
}

TEST_F(NotificationRowsTest, ADictionaryReplacesTheLastOne) {
  MeetingAlertsSubView row({0, 0, 300, 48}, &m_delegate);
  const struct {
    Content given;
    bool isOn;
    const char* minutes;
  } rows[] = {
      {Dictionary(), true, "15"},
      {Dictionary{{kKZMeetintNotificationToast, false}, {kKZMeetintNotificationToastMinutes, "5"}}, false,
       "5"},
      {std::nullopt, false, "5"},
      {Dictionary{{kKZMeetintNotificationToast, 0}, {kKZMeetintNotificationToastMinutes, 10.0}}, false, "10"},
      {Dictionary{{kKZMeetintNotificationToast, "0"}, {kKZMeetintNotificationToastMinutes, true}}, true,
       "15"},
      {Dictionary{{kKZMeetintNotificationToastMinutes, "10"}}, true, "10"}};
  for (const auto& given : rows) {
    row.setPreference(given.given);
    EXPECT_EQ(boxOf(row)->isChecked(), given.isOn);
    EXPECT_EQ(minutesOf(row)->isEnabled(), given.isOn);
    EXPECT_EQ(minutesOf(row)->title(), given.minutes);
  }
  EXPECT_EQ(storedNotification(), Dictionary());
}

TEST_F(NotificationRowsTest, ThePaneWritesTheKeysOfOlderVersions) {
  KZPlistFileHandle::sharedInstance().setMeetingNotification({{"kept", 1}});
  PrefNotificationView pane({0, 0, 300, 88}, &m_delegate);
  QCheckBox box;
  PopUpButton minutes({"3", "5"});
  pane.onMeetingAlertsButton(&box);
  pane.onMeetingAlertsMinutesButton(&minutes);
  box.setChecked(true);
  minutes.setTitle("5");
  pane.onSnoozeButton(&box);
  pane.onSnoozeMinutesButton(&minutes);
  pane.onMeetingCardButton(&box);
  pane.onMeetingCardMinutesButton(&minutes);
  EXPECT_EQ(storedNotification(), (Dictionary{{"kept", 1},
                                              {"MeetingToast", false},
                                              {"MeetingToastMinutes", "3"},
                                              {"ToastSnooze", true},
                                              {"ToastSnoozeMinutes", "5"},
                                              {"MeetingCard", true},
                                              {"MeetingCardMinutes", "5"}}));
  EXPECT_EQ(takeSent(), QStringList());
}

}  // namespace
