#include "companion/services/SiteService.h"

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/services/ServicesFixture.h"

namespace {

class SiteServiceTest : public ServicesFixture {
 protected:
  void SetUp() override {
    ServicesFixture::SetUp();
    collectNotices(service);
  }

  SiteService::Result lookUp(const QString& site) {
    std::optional<SiteService::Result> answer;
    service.lookUp(site, [&answer](const SiteService::Result& got) { answer = got; });
    EXPECT_FALSE(answer) << "answered while it was asked";
    EXPECT_TRUE(kit::waitUntil([&answer] { return answer.has_value(); }));
    service.cancelLookUp();
    return answer.value_or(SiteService::Result());
  }

  static KZPlistFileHandle& store() { return KZPlistFileHandle::sharedInstance(); }

  SiteService service{&host, &network, {{QRT_Preference_PMRUrl, "https://stand-in.example/ada"}}};
};

TEST_F(SiteServiceTest, AnAdoptedSiteReachesTheStoreAndThePlugin) {
  service.signIn();
  EXPECT_EQ(textValue(store().preferenceInfo().value_or(Dictionary()), QRT_Preference_PMRUrl),
            "https://stand-in.example/ada");
  const SiteService::Result answer = lookUp("meetings.sandbox.example");
  ASSERT_TRUE(answer.site) << answer.failure.toStdString();
  EXPECT_TRUE(store().siteName().isNull());
  const auto told = [this] { return notifications(KZNotify::KZNotifyGetPreferenceDone).size(); };
  const qsizetype before = told();
  service.adopt(*answer.site);
  EXPECT_EQ(told(), before + 1);
  EXPECT_EQ(store().siteName(), "meetings.sandbox.example");
  EXPECT_EQ(store().cdnUrl(), "https://downloads.sandbox.example");
  EXPECT_EQ(textValue(store().preferenceInfo().value_or(Dictionary()), QRT_Preference_PMRUrl),
            "https://sandbox.example/meet/ada");

  host.trigger(KZCommand::KZCmdJoinByNumber);
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened.last().path(), "/join");
  EXPECT_EQ(textValue(store().preferenceInfo().value_or(Dictionary()), QRT_Preference_PMRUrl),
            "https://sandbox.example/meet/ada");
  service.openMeetingSettings();
  EXPECT_EQ(opened.last().path(), "/settings");

  service.adoptSilent("silent.meetings.sandbox.example");
  EXPECT_TRUE(store().cdnUrl().isNull());
  host.trigger(KZCommand::KZCmdJoinByNumber);
  EXPECT_EQ(opened.size(), 2);
  EXPECT_TRUE(notices.last().contains("joining by number")) << notices.last().toStdString();
}

TEST_F(SiteServiceTest, ASiteThatDoesNotAnswerSaysWhy) {
  const std::pair<const char*, const char*> faults[] = {
      {"silent.meetings.sandbox.example", "did not answer in time"},
      {"error.meetings.sandbox.example", "problem of its own"},
      {"certificate.meetings.sandbox.example", "belongs to another name"},
      {"loop.meetings.sandbox.example", "keeps leading"},
      {"garbage.meetings.sandbox.example", "no usable answer"},
      {"meetings.example.com", "outside the sandbox"},
      {"no site", "no name of a site"},
      {"127.0.0.1:1", "outside the sandbox"},
  };
  for (const auto& [site, words] : faults) {
    const SiteService::Result answer = lookUp(site);
    EXPECT_FALSE(answer.site) << site;
    EXPECT_TRUE(answer.failure.contains(words)) << site << ": " << answer.failure.toStdString();
  }
  EXPECT_TRUE(store().siteName().isNull());
}

TEST_F(SiteServiceTest, WithoutASiteTheUserIsToldToChooseOne) {
  service.openMeetingSettings();
  service.joinByNumber();
  EXPECT_EQ(notices, QStringList(2, "No site is known. Choose one in Preferences, Account."));
}

TEST_F(SiteServiceTest, AGuestHearsOfNoRecord) {
  store().setSiteName("meetings.sandbox.example");
  service.refresh();
  ASSERT_TRUE(kit::waitUntil([] { return !store().cdnUrl().isNull(); }));
  EXPECT_TRUE(notifications(KZNotify::KZNotifyGetPreferenceDone).isEmpty());
  service.joinByNumber();
  EXPECT_EQ(opened.size(), 1);
  EXPECT_TRUE(store().preferenceInfo().value_or(Dictionary()).isEmpty());
}

TEST_F(SiteServiceTest, WithTheNetworkTheSandboxsHostsAreNeverLookedForThere) {
  QStringList requested;
  ExchangeConfiguration configuration = quickConfiguration();
  configuration.network.endpoint = [&requested](const QUrl& address) {
    requested.append(address.host());
    return NetworkEndpoint{.address = "127.0.0.1", .port = 1};
  };
  ServiceNetwork both(NetworkReach::Network, configuration);
  SiteService ofBoth(&host, &both, {});
  const auto askFor = [&ofBoth](const QString& site) {
    std::optional<SiteService::Result> answer;
    ofBoth.lookUp(site, [&answer](const SiteService::Result& got) { answer = got; });
    EXPECT_TRUE(kit::waitUntil([&answer] { return answer.has_value(); }));
    return answer->failure;
  };
  store().setSiteName("meetings.sandbox.example");
  ofBoth.refresh();
  EXPECT_TRUE(askFor("meetings.real.example").contains("still starting"));
  EXPECT_TRUE(requested.isEmpty()) << requested.join(' ').toStdString();
  both.useSandbox(description);
  EXPECT_EQ(askFor("meetings.sandbox.example"), "");
  EXPECT_TRUE(requested.isEmpty());
  EXPECT_TRUE(askFor("meetings.real.example").contains("cannot be reached"));
  EXPECT_EQ(requested, QStringList{"meetings.real.example"});
  both.loseSandbox("It has ended.");
  EXPECT_TRUE(askFor("meetings.sandbox.example").startsWith("It has ended."));
  EXPECT_TRUE(askFor("meetings.real.example").contains("cannot be reached"));
  EXPECT_EQ(requested.count("meetings.real.example"), 2);
  EXPECT_EQ(requested.size(), 2);
}

}  // namespace
