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

TEST_F(ActionDelegateTest, EveryActionIsTracedAndSentOrStored) {
  const Dictionary account{{"a", "b"}};
  settings().setCalendarIntegration({{"kept", 1}});
  settings().setMeetingNotification({{"kept", 1}});
  const struct {
    std::function<void(PreferenceActionDelegate&)> act;
    const char* trace;
    const char* sent;
  } rows[] = {
      {[](auto& d) { d.checkingStartStateChanging(true); }, "checkingStartStateChanging flag:1",
       R"(4 {"kLaunchAtLogin":true})"},
      {[](auto& d) { d.outlookIntegratingStateChange(false); }, "outlookIntegratingStateChange flag:0",
       R"(4 {"kEnableOutlookKZPluginValue":false})"},
      {[&](auto& d) { d.applyOutlookAccount(account); }, R"(applyOutlookAccount accountInfo:{"a":"b"})",
       R"(15 {"a":"b"})"},
      {[&](auto& d) { d.cancelApplyOutlookAccount(account); },
       R"(cancelApplyOutlookAccount accountInfo:{"a":"b"})", R"(16 {"a":"b"})"},
      {[&](auto& d) { d.sinkOutlookAccountCredential(account); }, "sinkOutlookAccountCredential ",
       R"(27 {"a":"b"})"},
      {[&](auto& d) { d.notifyExchOnlineTokenGot(account); }, "notifyExchOnlineTokenGot ", R"(29 {"a":"b"})"},
      {[](auto& d) { d.editMeetingNowSetting(); }, "editMeetingNowSetting ",
       R"(11 {"QRT_Require_Link_Action_Type":1})"},
      {[](auto& d) { d.notifyExchDiscoverAuthFailure(); }, "notifyExchDiscoverAuthFailure ", "22 {}"},
      {[](auto& d) { d.calendarIntergrationSourceChanged(); }, "calendarIntergrationSourceChanged ", "18 {}"},
      {[](auto& d) { d.changeSite(); }, "changeSite ", "14 nil"},
      {[](auto& d) {
         d.setVideoDevicePrefs({{"v", true}});
       },
       R"(setVideoDevicePrefs prefs:{"v":true})", R"(19 {"v":true})"},
      {[](auto& d) { d.setCalendarDays("3"); }, "setCalendarDays days:3", nullptr},
      {[&](auto& d) { d.setExchangeInfo(account); }, R"(setExchangeInfo exchinfo:{"a":"b"})", nullptr},
      {[](auto& d) { d.setMeetingAlerts(false, "5"); }, "setMeetingAlerts state:0, minutes:5", nullptr},
      {[](auto& d) { d.setSnooze(true, "3"); }, "setSnooze state:1, minutes:3", nullptr},
      {[](auto& d) { d.setMeetingCard(true, "10"); }, "setMeetingCard state:1, minutes:10", nullptr},
      {[](auto& d) { d.setDisplayName("n", "e"); }, "setDisplayName displayName:n, email:e", "13 nil"},
  };
  for (const auto& row : rows) {
    takeTrace();
    row.act(m_delegate);
    EXPECT_EQ(takeTrace().value(0), QStringLiteral("PreferenceActionDelegate::") + row.trace);
    EXPECT_EQ(takeSent(), row.sent ? QStringList{row.sent} : QStringList()) << row.trace;
  }
  EXPECT_EQ(settings().videoDevice(), (Dictionary{{"v", true}}));
  EXPECT_EQ(settings().calendarIntegration(),
            (Dictionary{
                {"kept", 1}, {kKZCalendarIntegrationDays, "3"}, {kKZCalendarIntegrationExchange, account}}));
  EXPECT_EQ(settings().meetingNotification(), (Dictionary{{"kept", 1},
                                                          {kKZMeetintNotificationToast, false},
                                                          {kKZMeetintNotificationToastMinutes, "5"},
                                                          {kKZMeetintNotificationSnooze, true},
                                                          {kKZMeetintNotificationSnoozeMinutes, "3"},
                                                          {kKZMeetintNotificationCard, true},
                                                          {kKZMeetintNotificationCardMinutes, "10"}}));
}

TEST_F(ActionDelegateTest, ARefusedCredentialIsMarkedBeforeTheHostHears) {
  QVariant seenByHost;
  m_onNextSent = [&] {
    seenByHost = settings().calendarIntegration().value(kKZCalendarIntegrationExchange).toMap();
  };
  m_delegate.notifyListExchMeetingAuthFailure();
  EXPECT_EQ(seenByHost, QVariant(Dictionary{{kKZCalendarIntegrationOnpremiseCredValid, false}}));
  EXPECT_EQ(takeSent(), QStringList{"21 {}"});
}

TEST_F(ActionDelegateTest, ASourceBringsTheDefaultDaysAndReachesBothPanesBeforeTheStore) {
  class Pane final : public CalendarPreferenceReceiver {
   public:
    void setCalendarPreference(const Dictionary& preference) override {
      shown = preference;
      storedThen = settings().calendarIntegration();
    }
    Dictionary shown;
    Dictionary storedThen;
  };
  Pane user;
  Pane guest;
  m_delegate.setPrefMeetingView(&user);
  m_delegate.setNonSignInPrefMeetingView(&guest);
  m_delegate.setCalendarIntegrationSource("s");
  const Dictionary expected{{kKZCalendarIntegrationSource, "s"}, {kKZCalendarIntegrationDays, "7"}};
  EXPECT_EQ(user.shown, expected);
  EXPECT_EQ(guest.shown, expected);
  EXPECT_EQ(guest.storedThen, Dictionary());
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
