#include "companion/services/UpdateService.h"

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZUtility.h"
#include "tests/services/ServicesFixture.h"

namespace {

const QUrl kManifest("https://downloads.example.com/companion/updates.json");

TEST(UpdateManifest, NamesAPageOfItsOwnHostOrThisMachine) {
  const std::pair<const char*, const char*> pages[] = {
      {"/get", "https://downloads.example.com/get"},
      {"https://new.downloads.example.com/", "https://new.downloads.example.com/"},
      {"http://127.0.0.1:8080/get", "http://127.0.0.1:8080/get"},
      {"", ""},
      {"https://example.com/get", ""},
      {"https://ada@downloads.example.com/get", ""},
  };
  for (const auto& [page, opened] : pages) {
    const auto manifest =
        readUpdateManifest(kManifest, QByteArray(R"({"version":"9.1.0","page":")") + page + "\"}");
    ASSERT_TRUE(manifest) << page;
    EXPECT_EQ(manifest->version.toString(), "9.1.0");
    EXPECT_EQ(manifest->page.toString().toStdString(), opened) << page;
  }
  EXPECT_TRUE(readUpdateManifest(kManifest, R"({"version":"9"})"));
}

TEST(UpdateManifest, RefusesWhatIsNone) {
  for (const QByteArray& json :
       {QByteArray(), QByteArray("[]"), QByteArray("{}"), QByteArray("<html>"), QByteArray(100'000, '['),
        QByteArray(R"({"version":9})"), QByteArray(R"({"version":"9.x"})"),
        QByteArray(R"({"version":"99999999999"})"), QByteArray(R"({"version":" 9"})")}) {
    EXPECT_FALSE(readUpdateManifest(kManifest, json)) << json.left(200).data();
  }
}

class UpdateServiceTest : public ServicesFixture {
 protected:
  void SetUp() override {
    ServicesFixture::SetUp();
    collectNotices(updates);
  }

  static void useSite(const QString& site) { KZPlistFileHandle::sharedInstance().setSiteName(site); }

  // What each notification 8 reported: "success" or its message.
  QStringList outcomes() const {
    QStringList texts;
    for (const Dictionary& content : notifications(KZNotify::KZNotifyCheckForUpdatesDone)) {
      const bool isGood = textValue(content, kKZResult) == kKZSuccess;
      texts.append(isGood ? QStringLiteral("success")
                          : textValue(dictionaryValue(content, kKZErrorHandleData), kKZErrorMessage));
    }
    return texts;
  }

  // As the user asks, until it is answered; the outcome.
  std::string check(const QString& site) {
    useSite(site);
    const qsizetype before = outcomes().size();
    updates.check();
    EXPECT_TRUE(isInProgress());
    EXPECT_TRUE(kit::waitUntil([&] { return outcomes().size() > before; })) << site.toStdString();
    EXPECT_FALSE(isInProgress()) << site.toStdString();
    return outcomes().isEmpty() ? std::string() : outcomes().last().toStdString();
  }

  static bool isInProgress() { return KZUtility::sharedInstance().isCheckForUpdatesInProgress(); }

  UpdateService updates{&host, &network};
};

TEST_F(UpdateServiceTest, ANewerVersionIsOfferedWithItsPage) {
  EXPECT_EQ(check("meetings.sandbox.example"), "success");
  EXPECT_EQ(notices.last(), "Version 9.1.0 is available.");
  EXPECT_EQ(updates.offeredVersion(), "9.1.0");
  updates.openPage();
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened.first().path(), "/download");

  EXPECT_EQ(check("current.sandbox.example"), "success");
  EXPECT_EQ(notices.last(), "You have the newest version.");
  EXPECT_TRUE(updates.offeredVersion().isEmpty());
  EXPECT_TRUE(warnings.isEmpty());
}

TEST_F(UpdateServiceTest, EachFaultIsReported) {
  const std::pair<const char*, const char*> faults[] = {
      {"silent.meetings.sandbox.example", "did not answer in time"},
      {"garbage.meetings.sandbox.example", "no usable answer"},
      {"unknown.sandbox.example", "does not have what was asked"},
      {"meetings.example.com", "--network"},
  };
  for (const auto& [site, words] : faults) {
    const std::string outcome = check(site);
    EXPECT_NE(outcome.find(words), std::string::npos) << site << ": " << outcome;
    EXPECT_EQ(warnings.last().toStdString(), outcome) << site;
  }
}

TEST_F(UpdateServiceTest, AnotherSiteEndsACheckAndTakesBackTheOffer) {
  check("meetings.sandbox.example");
  useSite("silent.meetings.sandbox.example");
  updates.check();
  updates.check();
  EXPECT_TRUE(notices.last().contains("already running"));
  updates.abandon();
  EXPECT_TRUE(outcomes().last().contains("site has changed"));
  EXPECT_TRUE(updates.offeredVersion().isEmpty());
  EXPECT_FALSE(isInProgress());
}

TEST_F(UpdateServiceTest, AQuietCheckReportsNothingButANewerVersion) {
  QStringList sites{"error.meetings.sandbox.example", "current.sandbox.example"};
  for (const QString& site : sites) {
    useSite(site);
    const qsizetype visits = played.visits().size();
    updates.checkQuietly();
    ASSERT_TRUE(kit::waitUntil([&] { return played.visits().size() > visits; })) << site.toStdString();
    QTest::qWait(50);
  }
  EXPECT_TRUE(notices.isEmpty() && warnings.isEmpty()) << notices.join(u' ').toStdString();
  useSite("meetings.sandbox.example");
  updates.checkQuietly();
  ASSERT_TRUE(kit::waitUntil([this] { return !notices.isEmpty(); }));
  EXPECT_EQ(notices, QStringList{"Version 9.1.0 is available."});
  EXPECT_EQ(updates.offeredVersion(), "9.1.0");
  EXPECT_TRUE(outcomes().isEmpty());
}

// As the plug-in's own window asks: it does not know of a quiet check.
TEST_F(UpdateServiceTest, ACheckTakesOverAQuietOneThatStillRuns) {
  useSite("slow.meetings.sandbox.example");
  updates.checkQuietly();
  host.trigger(KZCommand::KZCmdCheckForUpdates);
  host.trigger(KZCommand::KZCmdCheckForUpdatesAutomatically);
  ASSERT_TRUE(kit::waitUntil([this] { return !outcomes().isEmpty(); }));
  EXPECT_EQ(outcomes(), QStringList{"success"});
  EXPECT_EQ(notices, (QStringList{"Checking for updates.", "Version 9.1.0 is available."}));
}

TEST_F(UpdateServiceTest, WithoutASiteTheFlagIsCleared) {
  useSite({});
  updates.check();
  EXPECT_FALSE(isInProgress());
  EXPECT_TRUE(notices.last().contains("Choose one"));
}

}  // namespace
