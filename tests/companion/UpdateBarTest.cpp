#include "companion/app/UpdateBar.h"

#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "companion/services/UpdateService.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"
#include "tests/services/ServicesFixture.h"

namespace {

class UpdateBarTest : public ServicesFixture {
 protected:
  void SetUp() override {
    ServicesFixture::SetUp();
    QObject::connect(&updates, &UpdateService::noticed, &updates,
                     [this](const QString& text) { notices.append(text); });
    parent.show();
  }

  static void useSite(const QString& site) { KZPlistFileHandle::sharedInstance().setSiteName(site); }

  QPushButton* shownButton(const char* title) const {
    for (auto* one : bar->findChildren<QPushButton*>()) {
      if (one->text() == title && one->isVisible()) return one;
    }
    return nullptr;
  }

  QString text() const { return bar->findChild<QLabel*>()->text(); }

  QString packages = folder.filePath("updates");
  UpdateService updates{&host, &network, packages};
  QWidget parent;
  UpdateBar* bar = [this] {
    auto* made = new UpdateBar(&updates);
    made->setParent(&parent);
    return made;
  }();
  QProgressBar* progress = bar->findChild<QProgressBar*>();
};

TEST_F(UpdateBarTest, AnOfferOfTheQuietCheckIsFetchedWithProgress) {
  useSite("meetings.sandbox.example");
  EXPECT_FALSE(bar->isVisible());
  updates.checkQuietly();
  EXPECT_FALSE(bar->isVisible()) << "a quiet check is not shown";
  ASSERT_TRUE(waitUntil([this] { return shownButton("Download") != nullptr; }));
  EXPECT_EQ(text(), "Version 9.1.0 is there.");
  EXPECT_TRUE(!progress->isVisible() && !shownButton("Cancel"));

  int most = 0;
  QObject::connect(progress, &QProgressBar::valueChanged, &parent, [&](int value) {
    EXPECT_GE(value, most);
    most = value;
    EXPECT_TRUE(text().startsWith("Fetching the update: ")) << text().toStdString();
  });
  shownButton("Download")->click();
  EXPECT_TRUE(progress->isVisible() && shownButton("Cancel") && !shownButton("Download"));
  ASSERT_TRUE(waitUntil([this] { return !bar->isVisible(); }));
  EXPECT_EQ(most, progress->maximum());
  EXPECT_TRUE(notices.last().contains(packages)) << notices.last().toStdString();
}

TEST_F(UpdateBarTest, CancelEndsAFetchAndAnotherSiteAnOffer) {
  useSite("slow.meetings.sandbox.example");
  updates.check();
  ASSERT_TRUE(waitUntil([this] { return progress->value() > 0; }));
  updates.check();
  EXPECT_TRUE(notices.last().contains("already running")) << notices.last().toStdString();
  shownButton("Cancel")->click();
  EXPECT_FALSE(bar->isVisible());
  EXPECT_FALSE(KZUtility::sharedInstance().isCheckForUpdatesInProgress());
  EXPECT_TRUE(waitUntil([this] { return QDir(packages).isEmpty(QDir::Files | QDir::Hidden); }));

  useSite("meetings.sandbox.example");
  updates.checkQuietly();
  ASSERT_TRUE(waitUntil([this] { return shownButton("Download") != nullptr; }));
  updates.abandon();
  EXPECT_FALSE(bar->isVisible());
}

// As the plug-in's own window asks: it knows of no quiet check.
TEST_F(UpdateBarTest, ACheckTakesOverAQuietOneThatStillRuns) {
  useSite("slow.meetings.sandbox.example");
  updates.checkQuietly();
  QTest::qWait(20);
  host.trigger(KZCommand::KZCmdCheckForUpdates);
  EXPECT_TRUE(bar->isVisible());
  host.trigger(KZCommand::KZCmdCheckForUpdatesAutomatically);
  ASSERT_TRUE(waitUntil([this] { return progress->value() > 0; }));
  EXPECT_FALSE(shownButton("Download")) << "the quiet check has answered, too";
  shownButton("Cancel")->click();
  EXPECT_EQ(notifications(KZNotify::KZNotifyCheckForUpdatesDone).size(), 1);
}

}  // namespace
