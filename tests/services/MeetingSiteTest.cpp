#include "companion/services/SiteService.h"

#include <gtest/gtest.h>

#include "companion/network/WebAddress.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

TEST(MeetingSite, LinksStayWithTheSiteOrThisMachine) {
  const std::pair<const char*, bool> links[] = {
      {"https://meetings.example.com/join", true},
      {"https://pages.meetings.example.com/join", true},
      {"http://127.0.0.1:8080/join", true},
      {"http://meetings.example.com/join", false},
      {"https://example.com/join", false},
      {"https://evil-meetings.example.com.example.org/", false},
      {"https://meetings.example.com@evil.example/", false},
      {"https://ada@meetings.example.com/", false},
      {"file:///etc/passwd", false},
      {"javascript:alert(1)", false},
      {"", false},
  };
  for (const auto& [link, isOpened] : links) {
    const QByteArray json = QByteArray(R"({"links":{"joinByNumber":")") + link + "\"}}";
    const auto site = readMeetingSite("meetings.example.com", json);
    ASSERT_TRUE(site) << link;
    EXPECT_EQ(!site->joinByNumber.isEmpty(), isOpened) << link;
  }
}

TEST(MeetingSite, DownloadsAreNeverAskedOfThisMachineUnlessTheSiteIsOnIt) {
  const std::tuple<const char*, const char*, bool> cases[] = {
      {"meetings.example.com", "https://cdn.example.org", true},
      {"meetings.example.com", "http://cdn.example.org", false},
      {"meetings.example.com", "https://ada@cdn.example.org", false},
      {"meetings.example.com", "http://127.0.0.1:631", false},
      {"meetings.example.com", "https://localhost", false},
      {"127.0.0.1:8080", "http://127.0.0.1:8081", true},
  };
  for (const auto& [site, downloads, isTaken] : cases) {
    const auto said = readMeetingSite(site, QByteArray(R"({"downloads":")") + downloads + "\"}");
    ASSERT_TRUE(said) << downloads;
    EXPECT_EQ(!said->downloads.isNull(), isTaken) << site << " " << downloads;
  }
}

TEST(MeetingSite, WrongTypesCountAsLeftOut) {
  const auto site =
      readMeetingSite("meetings.example.com", R"({"name":5,"outlook":"yes","downloads":"ftp://a",
      "links":[],"preference":{"pmrUrl":{},"pmrSipUrl":"a\u0000b","disableCalendarIntegration":1}})");
  ASSERT_TRUE(site);
  EXPECT_TRUE(site->name.isNull());
  EXPECT_TRUE(site->downloads.isNull());
  EXPECT_FALSE(site->isOutlookEnabled);
  EXPECT_FALSE(site->preference.contains(QRT_Preference_PMRUrl));
  EXPECT_FALSE(site->preference.contains(QRT_Preference_PMRSipUrl));
  for (const char* json : {"", "[]", "<html>", "5", "{"})
    EXPECT_FALSE(readMeetingSite("a.example", json)) << json;
}

TEST(MeetingSite, AnAddressIsOfAHostAlone) {
  EXPECT_EQ(siteAddress("meetings.example.com"), QUrl("https://meetings.example.com/"));
  EXPECT_EQ(siteAddress("127.0.0.1:8080"), QUrl("http://127.0.0.1:8080/"));
  for (const char* none : {"", " ", "a b", "a/b", "a?b", "a#b", "ada@a.example", "http://a.example", "a:b"}) {
    EXPECT_TRUE(siteAddress(none).isEmpty()) << none;
  }
}

}  // namespace
