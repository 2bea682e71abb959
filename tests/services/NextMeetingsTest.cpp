#include "companion/services/NextMeetings.h"

#include <QJsonDocument>

#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/kit/FromPlugin.h"
#include "tests/services/ServicesFixture.h"

namespace {

using namespace std::chrono_literals;

const QString kOnlineEmail = QStringLiteral("ada@cloud.sandbox.example");

// An online account. Without a plug-in nothing renews its token, and the test plays the renewal.
class NextMeetingsTest : public ServicesFixture {
 protected:
  void SetUp() override {
    if (!played.listen()) GTEST_SKIP() << "the openssl program is missing: no certificate for the sandbox";
    network.useSandbox(SandboxDescription::fromJson(QJsonDocument(played.describe()).toJson()));
    KZPlistFileHandle::sharedInstance().setCalendarIntegration(
        {{kKZCalendarIntegrationSource, kKZCalendarIntegrationSourceOutlook},
         {kKZCalendarIntegrationExchange, account(kOnlineEmail)}});
  }

  static Dictionary account(const QString& email) {
    return {
        {kKZCalendarIntegrationExchangeEmail, email},
        {kKZCalendarIntegrationIsOnline, 1},
        {kKZCalendarIntegrationExchangeExternalUrl, "https://mail.online.sandbox.example/EWS/Exchange.asmx"}};
  }

  void answer(const QString& email, Dictionary values) {
    values.insert(kKZCalendarIntegration, Dictionary{{kKZCalendarIntegrationExchange, account(email)}});
    sendFromPlugin(host, KZCommand::KZCmdExchOnlineTokenGot, values);
  }

  static void ask(NextMeetings& meetings) {
    meetings.setWatched(true);
    EXPECT_TRUE(kit::waitUntil([&meetings] { return meetings.isAsking(); }));
  }

  static bool says(const NextMeetings& meetings, const char* words) {
    return kit::waitUntil([&] { return meetings.text().contains(words); });
  }
};

TEST_F(NextMeetingsTest, AnnouncesWhatTheNotificationsPaneShows) {
  const struct {
    Dictionary stored;
    int minutes;
  } rows[] = {{{}, 0},
              {{{kKZMeetintNotificationToastMinutes, "5"}}, 5},
              {{{kKZMeetintNotificationToast, 0}, {kKZMeetintNotificationToastMinutes, "5"}}, 0},
              {{{kKZMeetintNotificationToast, 1}, {kKZMeetintNotificationToastMinutes, 10.0}}, 10}};
  for (const auto& row : rows) {
    KZPlistFileHandle::sharedInstance().setMeetingNotification(row.stored);
    EXPECT_EQ(announcedMinutes(), row.minutes);
  }
}

TEST_F(NextMeetingsTest, WithoutATokenSaysAtOnceThatNobodyIsSignedIn) {
  ASSERT_TRUE(host.load(PREFERENCES)) << host.errorText().toStdString();
  NextMeetings meetings(&host, &network);
  meetings.setWatched(true);
  EXPECT_TRUE(says(meetings, "Nobody is signed in as ada@cloud.sandbox.example. Detect the account again"));
}

TEST_F(NextMeetingsTest, TakesTheAnswerToItsQuestionAlone) {
  NextMeetings meetings(&host, &network);
  ask(meetings);
  answer("earlier@cloud.example", {{QRT_ListingMeeting_exchOnlineToken, "another's"}});
  answer(kOnlineEmail, {{QRT_ListingMeeting_exchOnlineToken, "old"}, {"isTokenExpired", true}});
  EXPECT_TRUE(meetings.isAsking());
  answer(kOnlineEmail, {{QRT_ListingMeeting_exchOnlineToken, "new"}, {"isTokenExpired", false}});
  answer(kOnlineEmail, {{QRT_ListingMeeting_exchOnlineToken, "unasked"}});
  EXPECT_TRUE(says(meetings, "did not accept your sign-in"));
  ASSERT_EQ(played.visits().size(), 1);
  EXPECT_EQ(played.visits().first().authorization, "Bearer new");

  ask(meetings);
  answer(kOnlineEmail, {{"GetTokenFailed", true}, {"GetTokenFailedReason", "SignInAgain"}});
  EXPECT_TRUE(says(meetings, "could not be renewed. Detect the account again"));
  ask(meetings);
  answer(kOnlineEmail, {{"GetTokenFailed", true}, {"GetTokenFailedReason", "TryLater"}});
  EXPECT_TRUE(says(meetings, "cannot be renewed now. Refresh"));
}

TEST_F(NextMeetingsTest, ALateRenewalIsStillUsedAfterTheUserHasBeenTold) {
  NextMeetings meetings(&host, &network, 20ms);
  ask(meetings);
  EXPECT_TRUE(says(meetings, "not renewed in time. Refresh"));
  answer(kOnlineEmail, {{QRT_ListingMeeting_exchOnlineToken, "late"}, {"isTokenExpired", false}});
  EXPECT_TRUE(says(meetings, "did not accept your sign-in"));
  EXPECT_EQ(played.visits().last().authorization, "Bearer late");
}

}  // namespace
