#include "companion/services/UpdateService.h"

#include <QDir>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"
#include "tests/services/ServicesFixture.h"

namespace {

class UpdateServiceTest : public ServicesFixture {
 protected:
  void SetUp() override {
    ServicesFixture::SetUp();
    QObject::connect(&updates, &UpdateService::noticed, &updates,
                     [this](const QString& text) { notices.append(text); });
    QObject::connect(&updates, &UpdateService::offered, &updates,
                     [this](const QString& text) { offers.append(text); });
    QObject::connect(&updates, &UpdateService::ended, &updates, [this] { ++ended; });
    QObject::connect(&updates, &UpdateService::progressed, &updates, [this] { ++progress; });
  }

  static void useSite(const QString& site) { KZPlistFileHandle::sharedInstance().setSiteName(site); }

  // What notification 8 said: its message, "success", or nothing.
  QString outcome() const {
    const QList<Dictionary> done = notifications(KZNotify::KZNotifyCheckForUpdatesDone);
    if (done.isEmpty()) return {};
    if (textValue(done.last(), kKZResult) == kKZSuccess) return QStringLiteral("success");
    return textValue(dictionaryValue(done.last(), kKZErrorHandleData), kKZErrorMessage);
  }

  QStringList files() const { return QDir(packages).entryList(QDir::Files | QDir::Hidden); }
  static bool isInProgress() { return KZUtility::sharedInstance().isCheckForUpdatesInProgress(); }

  QString packages = folder.filePath("updates");
  UpdateService updates{&host, &network, packages};
  QStringList offers;
  int ended = 0;
  int progress = 0;
};

TEST_F(UpdateServiceTest, FetchesANewerVersionAndTellsWhereItLies) {
  useSite("meetings.sandbox.example");
  updates.check();
  EXPECT_TRUE(isInProgress());
  ASSERT_TRUE(waitUntil([this] { return ended == 1; }));
  EXPECT_EQ(outcome(), "success") << outcome().toStdString();
  EXPECT_EQ(files(), QStringList{"brenn-mivra-meetings-9.1.0.deb"});
  EXPECT_EQ(QFileInfo(packages + "/brenn-mivra-meetings-9.1.0.deb").size(), 3 * 1024 * 1024);
  EXPECT_GT(progress, 1);
  EXPECT_TRUE(notices.last().contains(packages) && notices.last().contains("not installed by itself"));
  EXPECT_FALSE(isInProgress());
  EXPECT_TRUE(warnings.isEmpty());
}

TEST_F(UpdateServiceTest, SaysThatNothingNewerIsThere) {
  useSite("current.sandbox.example");
  updates.check();
  ASSERT_TRUE(waitUntil([this] { return ended == 1; }));
  EXPECT_EQ(outcome(), "success");
  EXPECT_TRUE(notices.last().contains("newest"));
  EXPECT_FALSE(QDir(packages).exists());
}

TEST_F(UpdateServiceTest, EachFaultIsToldAndLeavesNothingBehind) {
  const std::pair<const char*, const char*> faults[] = {
      {"silent.meetings.sandbox.example", "did not answer in time"},
      {"error.meetings.sandbox.example", "problem of its own"},
      {"certificate.meetings.sandbox.example", "belongs to another name"},
      {"loop.meetings.sandbox.example", "keeps leading"},
      {"garbage.meetings.sandbox.example", "no usable answer"},
      {"huge.meetings.sandbox.example", "more than it announced"},
      {"damaged.meetings.sandbox.example", "damaged on its way"},
      {"nobody.sandbox.example", "belongs to another name"},
      {"meetings.example.com", "--network"},
  };
  for (const auto& [site, words] : faults) {
    useSite(site);
    const int before = ended;
    updates.check();
    ASSERT_TRUE(waitUntil([&] { return ended == before + 1; })) << site;
    EXPECT_TRUE(outcome().contains(words)) << site << ": " << outcome().toStdString();
    EXPECT_EQ(warnings.last(), outcome()) << site;
    EXPECT_FALSE(isInProgress()) << site;
    EXPECT_TRUE(files().isEmpty()) << site << ": " << files().join(u' ').toStdString();
  }
}

TEST_F(UpdateServiceTest, ADiskThatTakesNothingIsTold) {
  QFile inTheWay(packages);
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  useSite("meetings.sandbox.example");
  updates.check();
  ASSERT_TRUE(waitUntil([this] { return ended == 1; }));
  EXPECT_TRUE(outcome().contains("cannot be kept in " + packages)) << outcome().toStdString();
}

TEST_F(UpdateServiceTest, CancelAndAnotherSiteEndADownload) {
  for (const bool isCancelled : {true, false}) {
    useSite("slow.meetings.sandbox.example");
    const int before = ended;
    progress = 0;
    updates.check();
    ASSERT_TRUE(waitUntil([this] { return progress > 0; }));
    updates.check();
    EXPECT_TRUE(notices.last().contains("already running"));
    isCancelled ? updates.cancel() : updates.abandon();
    EXPECT_EQ(ended, before + 1);
    EXPECT_TRUE(outcome().contains(isCancelled ? "success" : "site has changed")) << outcome().toStdString();
    EXPECT_FALSE(isInProgress());
    QTest::qWait(50);
    EXPECT_TRUE(files().isEmpty());
  }
  EXPECT_EQ(notifications(KZNotify::KZNotifyCheckForUpdatesDone).size(), 2);
}

TEST_F(UpdateServiceTest, AQuietCheckOffersOrKeepsQuiet) {
  for (const char* site : {"error.meetings.sandbox.example", "current.sandbox.example"}) {
    useSite(site);
    const int before = ended;
    updates.checkQuietly();
    ASSERT_TRUE(waitUntil([&] { return ended == before + 1; })) << site;
    EXPECT_TRUE(offers.isEmpty() && notices.isEmpty() && warnings.isEmpty()) << site;
  }
  useSite("meetings.sandbox.example");
  updates.checkQuietly();
  ASSERT_TRUE(waitUntil([this] { return !offers.isEmpty(); }));
  EXPECT_EQ(offers, QStringList{"Version 9.1.0 is there."});
  EXPECT_TRUE(files().isEmpty());
  EXPECT_TRUE(notifications(KZNotify::KZNotifyCheckForUpdatesDone).isEmpty());
}

TEST_F(UpdateServiceTest, WithoutASiteTheFlagIsCleared) {
  useSite({});
  updates.check();
  EXPECT_FALSE(isInProgress());
  EXPECT_TRUE(notices.last().contains("Choose one"));
}

}  // namespace
