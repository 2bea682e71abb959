#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <algorithm>

#include "companion/app/Companion.h"
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

// At a large font on a small screen: every button is as wide as its text and inside its row, and each key
// stands for one control.
TEST(CompanionPages, AreWholeAndKeepTheirMnemonicsApartInEveryLanguage) {
  const QTemporaryDir state;
  CompanionOptions options;
  options.stateFolder = state.path();
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPixelSize(27);
  QApplication::setFont(large);
  for (const char* language : {"en", "de", "es", "fr", "ja", "zh_CN"}) {
    QLocale::setDefault(QLocale(QString::fromLatin1(language)));
    Companion companion(options);
    ASSERT_TRUE(companion.loadPlugin(FAKE_PLUGIN));
    CompanionWindow& window = *companion.window();
    window.resize(780, 420);
    window.show();
    auto* tabs = window.findChild<QTabBar*>();
    for (int page = 0; page < tabs->count(); ++page) {
      tabs->setCurrentIndex(page);
      kit::settle();
      QList<QKeySequence> keys;
      for (int tab = 0; tab < tabs->count(); ++tab) keys.append(QKeySequence::mnemonic(tabs->tabText(tab)));
      for (const auto* button : window.findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty()) continue;
        const std::string what = language + (": " + button->text().toStdString());
        EXPECT_GE(button->width(), button->sizeHint().width()) << what;
        EXPECT_TRUE(button->parentWidget()->rect().contains(button->geometry())) << what;
        if (button->text().contains(u'&')) keys.append(QKeySequence::mnemonic(button->text()));
      }
      std::ranges::sort(keys);
      const auto twice = std::ranges::adjacent_find(keys);
      EXPECT_EQ(twice, keys.end()) << language << ' ' << page << ' ' << twice->toString().toStdString();
    }
  }
  QLocale::setDefault(QLocale::c());
  QApplication::setFont(before);
}

}  // namespace
