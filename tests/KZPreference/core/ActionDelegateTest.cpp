#include "KZPreference/core/PreferenceActionDelegate.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

KZPlistFileHandle& settings() {
  return KZPlistFileHandle::sharedInstance();
}

class ActionDelegateTest : public RecordingHost {
 protected:
  ActionDelegateTest() { takeTrace(); }

  CoreSender m_sender{m_core};
  PreferenceActionDelegate m_delegate{&m_sender};
};

TEST_F(ActionDelegateTest, StoringAValueKeepsTheOthers) {
  settings().setCalendarIntegration({{"kept", 1}});
  settings().setMeetingNotification({{"kept", 1}});
  m_delegate.setCalendarDays("3");
  m_delegate.setExchangeInfo({{"a", "b"}});
  m_delegate.setMeetingAlerts(false, "5");
  m_delegate.setSnooze(true, "3");
  m_delegate.setMeetingCard(true, "10");
  EXPECT_EQ(settings().calendarIntegration(),
            (Dictionary{{"kept", 1},
                        {kKZCalendarIntegrationDays, "3"},
                        {kKZCalendarIntegrationExchange, Dictionary{{"a", "b"}}}}));
  EXPECT_EQ(settings().meetingNotification(), (Dictionary{{"kept", 1},
                                                          {kKZMeetintNotificationToast, false},
                                                          {kKZMeetintNotificationToastMinutes, "5"},
                                                          {kKZMeetintNotificationSnooze, true},
                                                          {kKZMeetintNotificationSnoozeMinutes, "3"},
                                                          {kKZMeetintNotificationCard, true},
                                                          {kKZMeetintNotificationCardMinutes, "10"}}));
  EXPECT_EQ(takeSent(), QStringList());
}

TEST_F(ActionDelegateTest, TracesArgumentsButNoCredentialAndNoToken) {
  m_delegate.setMeetingAlerts(false, "5");
  m_delegate.applyOutlookAccount({{"a", "b"}});
  m_delegate.sinkOutlookAccountCredential({{"a", "b"}});
  m_delegate.notifyExchOnlineTokenGot({{"a", "b"}});
  EXPECT_EQ(takeTrace(),
            (QStringList{"PreferenceActionDelegate::setMeetingAlerts state:0, minutes:5",
                         R"(PreferenceActionDelegate::applyOutlookAccount accountInfo:{"a":"b"})",
                         "PreferenceActionDelegate::sinkOutlookAccountCredential ",
                         "PreferenceActionDelegate::notifyExchOnlineTokenGot "}));
  EXPECT_EQ(takeSent(), (QStringList{R"(15 {"a":"b"})", R"(27 {"a":"b"})", R"(29 {"a":"b"})"}));
}

TEST_F(ActionDelegateTest, ARefusedCredentialIsMarkedBeforeTheCommand) {
  QVariant seenByHost;
  m_onNextSent = [&] {
    seenByHost = settings().calendarIntegration()->value(kKZCalendarIntegrationExchange).toMap();
  };
  m_delegate.notifyListExchMeetingAuthFailure();
  EXPECT_EQ(seenByHost, QVariant(Dictionary{{kKZCalendarIntegrationOnpremiseCredValid, false}}));
  EXPECT_EQ(takeSent(), QStringList{"21 {}"});
}

TEST_F(ActionDelegateTest, ASourceSetsTheDefaultDaysAndReachesBothPanesBeforeTheStore) {
  class Pane final : public CalendarPreferenceReceiver {
   public:
    void setCalendarPreference(const Dictionary& preference) override {
      shown = preference;
      storedThen = settings().calendarIntegration();
    }
    Dictionary shown;
    Content storedThen;
  };
  Pane user;
  Pane guest;
  m_delegate.setPrefMeetingView(&user);
  m_delegate.setNonSignInPrefMeetingView(&guest);
  m_delegate.setCalendarIntegrationSource("s");
  const Dictionary expected{{kKZCalendarIntegrationSource, "s"}, {kKZCalendarIntegrationDays, "7"}};
  EXPECT_EQ(user.shown, expected);
  EXPECT_EQ(guest.shown, expected);
  EXPECT_EQ(guest.storedThen, std::nullopt);
  EXPECT_EQ(settings().calendarIntegration(), expected);

  m_delegate.setPrefMeetingView(nullptr);
  m_delegate.setCalendarDays("3");
  m_delegate.setCalendarIntegrationSource("t");
  EXPECT_EQ(guest.shown.value(kKZCalendarIntegrationDays), "3");
  EXPECT_EQ(user.shown, expected);
  EXPECT_EQ(takeSent(), QStringList());
}

TEST_F(ActionDelegateTest, AnUnchangedNameAndEmailAreNotSent) {
  m_delegate.setDisplayName("n", "e");
  takeSent();
  m_delegate.setDisplayName("n", "e");
  EXPECT_EQ(takeSent(), QStringList());
  m_delegate.setDisplayName("n", "f");
  EXPECT_EQ(takeSent(), QStringList{"13 nil"});
  EXPECT_EQ(settings().userName(), "f");
}

}  // namespace
