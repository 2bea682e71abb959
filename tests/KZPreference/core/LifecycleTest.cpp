#include <QApplication>
#include <QCheckBox>
#include <QTest>

#include "KZPreference/core/KZPreferenceCore.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"
#include "platform/WindowController.h"
#include "tests/KZPreference/core/RecordingHost.h"

namespace {

class LifecycleTest : public RecordingHost {};

TEST_F(LifecycleTest, AHostMayDestroyTheWindowFromInsideItsOwnClick) {
  for (const bool isGuestNext : {false, true}) {
    command(2);
    takeSent();
    m_onNextSent = [this, isGuestNext] {
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
    bool isAsked = false;
    m_onNextSent = [&] {
      isAsked = true;
      command(again);
    };
    command(3);
    settle();
    EXPECT_TRUE(isAsked) << again;
    EXPECT_EQ(window(), nullptr) << again;
  }
  command(2);
  EXPECT_TRUE(window()->isVisible());
}

TEST_F(LifecycleTest, ThePluginMayShutDownWithEverythingOpen) {
  command(2);
  clickPane("Meetings");
  notify(7, Dictionary{{kKZResult, kKZFail}});
  EXPECT_EQ(m_warnings.size(), 1);
  command(3);
  command(1);
  command(2);
  clickPane("Account");  // its fade is still running while the fixture shuts the plug-in down
}

TEST_F(LifecycleTest, ARecordIsSavedWhateverActionItHas) {
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
    const Dictionary record{{QRT_Preference_PMRUrl, "https://room"}, {"customInfo", row.customInfo}};
    notify(7, Dictionary{{"kz", record}, {kOpenPrefsViewType, kPrefsAccountView}});
    EXPECT_EQ(takeSent(), QStringList{R"(13 {"QRT_Preference_PMRUrl":"https://room"})"});
    EXPECT_EQ(window() && window()->isVisible(), row.isShown) << qPrintable(row.customInfo.toString());
  }
}

TEST_F(LifecycleTest, DefaultsLeaveAStoreAloneThatHasMinutes) {
  auto& store = KZPlistFileHandle::sharedInstance();
  store.setMeetingNotification({{kKZMeetintNotificationToastMinutes, 5}});
  store.setVideoDevice({{"other", "kept"}});
  command(1);
  EXPECT_EQ(store.meetingNotification(), (Dictionary{{kKZMeetintNotificationToastMinutes, 5}}));
  EXPECT_EQ(store.videoDevice(), (Dictionary{{"other", "kept"}, {kKZVideoDeviceAutodetect, true}}));
  store.setVideoDevice({{kKZVideoDeviceAutodetect, false}});
  command(1);
  EXPECT_EQ(store.videoDevice(), (Dictionary{{kKZVideoDeviceAutodetect, false}}));
}

TEST_F(LifecycleTest, WhatArrivesDuringTheShutDownIsDropped) {
  setKZTraceSink([this](const KZTraceRecord& record) {
    if (record.method != "KZPreference::~KZPreference") return;
    command(2);
    notify(15, std::nullopt);
  });
  KZPreferenceCore::shutDown();
  setKZTraceSink({});
  EXPECT_EQ(window(), nullptr);
}

TEST_F(LifecycleTest, ATokenRequestWithoutATokenIsEchoed) {
  command(28);
  command(28, Dictionary{{kKZCalendarIntegration, 5}});
  EXPECT_EQ(takeSent(), (QStringList{"29 nil", R"(29 {"kKZCalendarIntegration":5})"}));
}

}  // namespace
