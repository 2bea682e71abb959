#include <QApplication>
#include <QCheckBox>
#include <QPointer>
#include <QTest>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/WindowController.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

Dictionary recordWithCustomInfo(const QString& customInfo) {
  return {{"kz", Dictionary{{"customInfo", customInfo}, {QRT_Preference_PMRUrl, "https://room"}}}};
}

class LifecycleTest : public RecordingHost {};

TEST_F(LifecycleTest, TheVariantFollowsTheHostsCommands) {
  command(2);
  ASSERT_EQ(controllerClass(), "SignInPreferenceWindowController");
  EXPECT_TRUE(window()->isVisible());
  const QPointer<Window> signedIn = window();

  takeTrace();
  command(1);
  EXPECT_FALSE(signedIn->isVisible());
  EXPECT_TRUE(takeTrace().contains("KZPreference::destroyAppPreference "));
  settle();
  EXPECT_EQ(window(), nullptr);

  command(2, Dictionary{{kOpenPrefsViewType, kPrefsAccountView}});
  EXPECT_EQ(controllerClass(), "NonSignInPreferenceWindowController");
  command(3);
  command(3);
  settle();
  EXPECT_EQ(window(), nullptr);

  command(2);
  EXPECT_EQ(controllerClass(), "SignInPreferenceWindowController");
}

TEST_F(LifecycleTest, AHostMayDestroyTheWindowFromInsideItsOwnClick) {
  for (const bool isGuestNext : {false, true}) {
    command(2);
    takeSent();
    m_onSent = [this, isGuestNext](quint32) {
      m_onSent = {};
      command(3);
      if (isGuestNext) command(1);
    };
    auto* checkbox = find<QCheckBox>("m_startCheckingBtn");
    QTest::mouseClick(checkbox, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(takeSent().first(), R"(4 {"kLaunchAtLogin":false})");
    settle();
    EXPECT_EQ(window(), nullptr);
    KZPlistFileHandle::sharedInstance().setLaunchAtLogin(true);
  }
  command(2);
  EXPECT_EQ(controllerClass(), "NonSignInPreferenceWindowController");
}

TEST_F(LifecycleTest, AHostMayDestroyTheWindowWhileItCloses) {
  for (const quint64 again : {3, 1, 2}) {
    command(3);
    command(2);
    command(17, Dictionary{{kKZCalendarIntegrationSource, kKZCalendarIntegrationSourceOutlook}});
    notify(15, Dictionary{{kKZResult, kKZSuccess}});
    KZPlistFileHandle::sharedInstance().setCalendarIntegration({{kKZCalendarIntegrationSource, "changed"}});
    bool isAsked = false;
    m_onSent = [&](quint32) {
      isAsked = true;
      m_onSent = {};
      command(again);
    };
    command(3);
    m_onSent = {};
    settle();
    EXPECT_EQ(window(), nullptr) << again << isAsked;
  }
  command(2);
  EXPECT_TRUE(window()->isVisible());
}

TEST_F(LifecycleTest, NothingIsLeftWhenThePluginGoesWithEverythingOpen) {
  command(2);
  clickPane("Meetings");
  notify(7, Dictionary{{kKZResult, kKZFail}});
  EXPECT_EQ(m_warnings.size(), 1);
  command(3);
  command(1);
  command(2);
  clickPane("Account");  // its fade runs on while the fixture shuts the plug-in down
}

TEST_F(LifecycleTest, ARecordIsSavedWhateverItAsksFor) {
  const struct {
    QVariant customInfo;
    bool isShown;
  } rows[] = {
      {R"({"AppActionType":"RequireEditSetting"})", true},
      {R"({"AppActionType":"requireEditSetting"})", false},
      {R"({"AppActionType":["RequireEditSetting"]})", false},
      {R"([{"AppActionType":"RequireEditSetting"}])", false},
      {R"({"AppActionType":"RequireEditSetting")", false},
      {R"("RequireEditSetting")", false},
      {"", false},
      {7, false},
      {QVariant(), false},
  };
  for (const auto& row : rows) {
    command(3);
    settle();
    takeSent();
    Dictionary record = recordWithCustomInfo({}).value("kz").toMap();
    record.insert("customInfo", row.customInfo);
    notify(7, Dictionary{{"kz", record}, {kOpenPrefsViewType, kPrefsAccountView}});
    EXPECT_EQ(takeSent(), QStringList{R"(13 {"QRT_Preference_PMRUrl":"https://room"})"});
    EXPECT_EQ(window() && window()->isVisible(), row.isShown) << qPrintable(row.customInfo.toString());
  }
}

TEST_F(LifecycleTest, RefreshTakesItsAddressesFromTheContentItself) {
  const auto stored = [] { return KZPlistFileHandle::sharedInstance().preferenceInfo(); };
  notify(7, recordWithCustomInfo("{}"));
  EXPECT_EQ(stored(), (Dictionary{{QRT_Preference_PMRUrl, "https://room"}}));
  notify(12, Dictionary{{QRT_Preference_PMRSipUrl, "sip:room"}});
  EXPECT_EQ(stored(), (Dictionary{{QRT_Preference_PMRSipUrl, "sip:room"}}));
  notify(12, recordWithCustomInfo("{}"));
  EXPECT_EQ(stored(), Dictionary());
  EXPECT_EQ(takeSent().last(), "13 {}");
}

TEST_F(LifecycleTest, AFailedRecordChangesNothingAndShowsTheHostsText) {
  Dictionary content = recordWithCustomInfo(R"({"AppActionType":"RequireEditSetting"})");
  content.insert(kKZResult, kKZFail);
  content.insert(kKZErrorHandleData, Dictionary{{kKZErrorMessage, "Try <b>again</b>"}});
  notify(7, content);
  EXPECT_EQ(m_warnings, QStringList{"Brenn Mivra Meetings|Try <b>again</b>"});
  EXPECT_EQ(takeSent(), QStringList());
  EXPECT_EQ(window(), nullptr);
}

TEST_F(LifecycleTest, DefaultsLeaveAStoreAloneThatHasMinutes) {
  auto& store = KZPlistFileHandle::sharedInstance();
  store.setMeetingNotification({{kKZMeetintNotificationToastMinutes, 5}});
  store.setVideoDevice({{"other", "kept"}});
  command(1);
  EXPECT_EQ(store.meetingNotification(), (Dictionary{{kKZMeetintNotificationToastMinutes, 5}}));
  EXPECT_EQ(store.videoDevice(), (Dictionary{{"other", "kept"}, {kKZVideoDeviceAutodetect, true}}));
}

TEST_F(LifecycleTest, ATokenRequestWithoutATokenIsEchoed) {
  command(28);
  command(28, Dictionary{{kKZCalendarIntegration, 5}});
  EXPECT_EQ(takeSent(), (QStringList{"29 nil", R"(29 {"kKZCalendarIntegration":5})"}));
}

}  // namespace
