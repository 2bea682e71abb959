#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <algorithm>

#include "companion/app/CompanionWindow.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/kit/AssistiveTechnology.h"
#include "tests/services/ServicesFixture.h"

namespace {

class CompanionWindowTest : public ServicesFixture {
 protected:
  void SetUp() override {
    ServicesFixture::SetUp();
    services.network().useSandbox(description);
    window.useServices(&services);
    window.show();
  }

  QPushButton* shownButton(const QString& title) const {
    for (auto* one : window.findChildren<QPushButton*>()) {
      if (one->text().remove(u'&') == title && one->isVisible()) return one;
    }
    return nullptr;
  }

  void check(const QString& site) {
    KZPlistFileHandle::sharedInstance().setSiteName(site);
    shownButton("Check for updates")->click();
  }

  CompanionServices services{&host,
                             {.reach = NetworkReach::Sandbox,
                              .exchange = quickConfiguration(),
                              .record = {},
                              .dataFolder = folder.filePath("data"),
                              .autostart = AutostartEntry(folder.filePath("autostart"), "/bin/true")}};
  CompanionWindow window{&host};
};

TEST_F(CompanionWindowTest, LeadsToANewerVersionWhileThereIsOne) {
  check("meetings.sandbox.example");
  ASSERT_TRUE(kit::waitUntil([this] { return shownButton("Get version 9.1.0") != nullptr; }));
  QPushButton* button = shownButton("Get version 9.1.0");
  EXPECT_EQ(shownButton("Check for updates")->nextInFocusChain(), button);
  button->setFocus();
  QTest::keyClick(button, Qt::Key_Return);
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened.first().path(), "/download");
  check("current.sandbox.example");
  EXPECT_TRUE(kit::waitUntil([button] { return !button->isVisible(); }));
}

TEST_F(CompanionWindowTest, TellsANoticeAndForgetsItForAnotherUser) {
  kit::AssistiveTechnology reader;
  window.showNotice("Meetings come from Mivra now.");
  EXPECT_EQ(reader.takeAnnounced(), QStringList{"Meetings come from Mivra now."});
  const auto isShown = [this] {
    const auto labels = window.findChildren<QLabel*>();
    return std::ranges::any_of(labels, [](QLabel* label) { return label->text().startsWith("Meetings"); });
  };
  EXPECT_TRUE(isShown());
  window.findChildren<QRadioButton*>().last()->click();
  EXPECT_FALSE(isShown());
}

TEST_F(CompanionWindowTest, TellsThePageThatALetterChose) {
  for (const char* title : {"&One", "T&wo"}) window.addPage(title, [] { return new QLabel("page"); });
  auto* tabs = window.findChild<QTabBar*>();
  window.activateWindow();
  kit::AssistiveTechnology reader;
  kit::settle();
  QTest::keyClick(window.windowHandle(), Qt::Key_W, Qt::AltModifier);
  EXPECT_EQ(tabs->currentIndex(), 1);
  EXPECT_EQ(reader.takeAnnounced(), QStringList{"Two"});
  tabs->setFocus();
  QTest::keyClick(tabs, Qt::Key_Left);
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_TRUE(reader.takeAnnounced().isEmpty()) << "told by the tab bar already";
}

}  // namespace
