#include "companion/services/ChangeNotices.h"

#include <QAbstractButton>
#include <QAction>
#include <QLineEdit>

#include "companion/runtime/PreferencesWindow.h"
#include "companion/services/GeneralSettings.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/WindowController.h"
#include "tests/services/ServicesFixture.h"

namespace {

// Each sentence is told because of what the real plug-in's window was used for.
class ChangeNoticesTest : public ServicesFixture {
 protected:
  void SetUp() override {
    ServicesFixture::SetUp();
    collectNotices(changes);
    collectNotices(general);
  }

  void openPane(const char* label) {
    host.trigger(KZCommand::KZCmdShowPreference);
    ASSERT_NE(findPreferencesWindow(), nullptr);
    paneItemNamed(*findPreferencesWindow(), label)->trigger();
  }

  // Waits until the user could use it.
  template <typename Control>
  static Control* shown(const char* name) {
    return kit::usable<Control>(*findPreferencesWindow(), name);
  }

  static void click(const char* name) {
    auto* button = shown<QAbstractButton>(name);
    if (button) button->click();
  }

  void tellRecord(const Dictionary& record) {
    host.notify(KZNotify::KZNotifyGetPreferenceDone, Dictionary{{kKZResult, kKZSuccess}, {"kz", record}});
  }

  static void challenge(int type) {
    KZNotificationCenter::defaultCenter().post(
        {"HTTPAuthenticationRequired", nullptr, {{"AuthRequiringType", type}, {"ShowWarningMsg", "true"}}});
  }

  // The latest notice.
  std::string told() const { return notices.isEmpty() ? std::string() : notices.last().toStdString(); }

  ChangeNotices changes{&host};
  GeneralSettings general{&host, AutostartEntry(folder.filePath("autostart"), "/bin/true")};
};

TEST_F(ChangeNoticesTest, ChoicesInTheGeneralPane) {
  openPane("General");
  click("m_startCheckingBtn");
  const bool isStarted = QFile::exists(folder.filePath("autostart/brenn-mivra-companion.desktop"));
  EXPECT_EQ(told(), isStarted ? "Brenn Mivra Meetings starts after your next login."
                              : "Brenn Mivra Meetings does not start after login any more.");
  click("m_startCheckingBtn");
  EXPECT_EQ(told(), isStarted ? "Brenn Mivra Meetings does not start after login any more."
                              : "Brenn Mivra Meetings starts after your next login.");
  click("m_outlookIntegratingBtn");
  EXPECT_TRUE(notices.last().contains("Microsoft Outlook")) << told();
  EXPECT_EQ(notices.size(), 3);
}

TEST_F(ChangeNoticesTest, AnotherPersonalRoomIsNewsTheFirstAndTheSameAreNot) {
  tellRecord({{QRT_Preference_PMRUrl, "https://meetings.example.com/ada"}});
  tellRecord({{QRT_Preference_PMRUrl, "https://meetings.example.com/ada"}});
  EXPECT_TRUE(notices.isEmpty()) << told();
  tellRecord({{QRT_Preference_PMRUrl, "https://meetings.example.com/grace"}});
  EXPECT_EQ(told(), "Your personal room is https://meetings.example.com/grace now.");
  tellRecord({});
  EXPECT_EQ(told(), "You have no personal room any more.");
}

TEST_F(ChangeNoticesTest, AGuestOfAnotherName) {
  KZPlistFileHandle::sharedInstance().setDisplayName("Gustav");
  KZPlistFileHandle::sharedInstance().setUserName("gustav@example.com");
  host.trigger(KZCommand::KZCmdInitGuestPreference);
  openPane("Account");
  auto* edit = shown<QWidget>("m_editBtn");
  ASSERT_NE(edit, nullptr);
  QTest::mouseClick(edit, Qt::LeftButton);
  auto* name = shown<QLineEdit>("m_nameInputTxt");
  ASSERT_NE(name, nullptr);
  name->selectAll();
  QTest::keyClicks(name, "Grace");
  QTest::keyClick(name, Qt::Key_Return);
  EXPECT_EQ(told(), "You are Grace now, gustav@example.com.");
}

TEST_F(ChangeNoticesTest, AnotherCalendar) {
  tellRecord({{"disableCalendarIntegration", true}, {"enableListGoogleCalendarMeeting", true}});
  const std::pair<const char*, const char*> choices[] = {
      {"m_outlookRadioBtn", "Meetings come from Microsoft Outlook now."},
      {"m_googleRadioBtn", "Meetings come from Google now."},
      {"m_noneRadioBtn", "Meetings come from no calendar now."},
      {"m_mivraRadioBtn", "Meetings come from Mivra now."},
  };
  for (const auto& [button, sentence] : choices) {
    openPane("Meetings");
    click(button);
    findPreferencesWindow()->close();
    EXPECT_EQ(told(), sentence);
  }
}

TEST_F(ChangeNoticesTest, VideoDevices) {
  openPane("Video devices");
  auto* detect = shown<QAbstractButton>("m_autodetectBtn");
  ASSERT_NE(detect, nullptr);
  const bool wasOn = detect->isChecked();
  detect->click();
  EXPECT_TRUE(notices.last().contains(wasOn ? "not looked for any more" : "are looked for")) << told();
  detect->click();
  EXPECT_TRUE(notices.last().contains(wasOn ? "are looked for" : "not looked for any more")) << told();
}

TEST_F(ChangeNoticesTest, RefusedPasswords) {
  openPane("Meetings");
  challenge(2);
  EXPECT_TRUE(notices.last().contains("saved user name and password. Detect the account again")) << told();
  challenge(1);
  EXPECT_TRUE(kit::waitUntil([this] { return notices.last().contains("Check them, then detect"); }))
      << told();
}

}  // namespace
