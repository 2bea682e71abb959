#include "companion/services/TokenRequest.h"

#include <QSignalSpy>

#include "host/KZFoundation/KZConstants.h"
#include "tests/kit/FromPlugin.h"
#include "tests/services/ServicesFixture.h"

namespace {

using namespace std::chrono_literals;

const QString kAskedEmail = QStringLiteral("ada@cloud.example");

// The test plays the renewal.
class TokenRequestTest : public ServicesFixture {
 protected:
  static Dictionary accountOf(const QString& email) { return {{kKZCalendarIntegrationExchangeEmail, email}}; }

  void answer(const QString& email, Dictionary values) {
    values.insert(kKZCalendarIntegration, Dictionary{{kKZCalendarIntegrationExchange, accountOf(email)}});
    sendFromPlugin(host, KZCommand::KZCmdExchOnlineTokenGot, values);
  }

  // Without a plug-in nothing answers, as while the plug-in renews.
  void SetUp() override {}

  static void ask(TokenRequest& request) { request.ask(accountOf(kAskedEmail)); }
};

TEST_F(TokenRequestTest, WithoutATokenSaysAtOnceThatNobodyIsSignedIn) {
  ASSERT_TRUE(host.load(PREFERENCES)) << host.errorText().toStdString();
  TokenRequest request(&host);
  QSignalSpy failed(&request, &TokenRequest::failed);
  request.ask(accountOf(kAskedEmail));
  ASSERT_EQ(failed.size(), 1);
  EXPECT_EQ(failed.first().first().toString(),
            "Nobody is signed in as ada@cloud.example. Detect the account again to sign in.");
}

TEST_F(TokenRequestTest, TakesTheAnswerToItsQuestionAlone) {
  TokenRequest request(&host);
  QSignalSpy got(&request, &TokenRequest::got);
  QSignalSpy failed(&request, &TokenRequest::failed);
  ask(request);
  answer("earlier@cloud.example", {{QRT_ListingMeeting_exchOnlineToken, "another's"}});
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "old"}, {"isTokenExpired", true}});
  EXPECT_TRUE(got.isEmpty() && failed.isEmpty());
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "new"}, {"isTokenExpired", false}});
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "unasked"}});
  ASSERT_EQ(got.size(), 1);
  EXPECT_EQ(got.first().first().toString(), "new");

  ask(request);
  answer(kAskedEmail, {{"GetTokenFailed", true}});
  ASSERT_EQ(failed.size(), 1);
  EXPECT_TRUE(failed.first().first().toString().contains("could not be renewed. Detect the account again"));

  ask(request);
  request.cancel();
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "cancelled"}});
  EXPECT_EQ(got.size(), 1);
}

TEST_F(TokenRequestTest, ALateRenewalIsStillGivenAfterTheUserHasBeenTold) {
  TokenRequest request(&host, 20ms);
  QSignalSpy got(&request, &TokenRequest::got);
  QSignalSpy failed(&request, &TokenRequest::failed);
  ask(request);
  ASSERT_TRUE(failed.wait(2000));
  EXPECT_TRUE(failed.first().first().toString().contains("not renewed in time. Refresh"));
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "late"}, {"isTokenExpired", false}});
  ASSERT_EQ(got.size(), 1);
  EXPECT_EQ(got.first().first().toString(), "late");
  EXPECT_EQ(failed.size(), 1);
}

}  // namespace
