#include "companion/services/TokenRequest.h"

#include <QSignalSpy>

#include "host/KZFoundation/KZConstants.h"
#include "tests/services/ServicesFixture.h"

namespace {

using namespace std::chrono_literals;

const QString kAskedEmail = QStringLiteral("ada@cloud.example");

// The real plug-in knows no token here, so that the test can play the renewal.
class TokenRequestTest : public ServicesFixture {
 protected:
  static Dictionary accountOf(const QString& email) { return {{kKZCalendarIntegrationExchangeEmail, email}}; }

  void answer(const QString& email, Dictionary values) {
    values.insert(kKZCalendarIntegration, Dictionary{{kKZCalendarIntegrationExchange, accountOf(email)}});
    Q_EMIT border.commandSent(static_cast<quint64>(KZCommand::KZCmdExchOnlineTokenGot), values);
  }

  // As the plug-in is while it renews: it has heard the question and says nothing.
  void askSilently(TokenRequest& request) {
    const QSignalBlocker silence(border);
    request.ask(accountOf(kAskedEmail));
  }
};

TEST_F(TokenRequestTest, WithoutATokenSaysAtOnceThatNobodyIsSignedIn) {
  TokenRequest request(&border);
  QSignalSpy failed(&request, &TokenRequest::failed);
  request.ask(accountOf(kAskedEmail));
  ASSERT_EQ(failed.size(), 1);
  EXPECT_EQ(failed.first().first().toString(),
            "Nobody is signed in as ada@cloud.example. Detect the account again to sign in.");
}

TEST_F(TokenRequestTest, TakesTheAnswerToItsQuestionAlone) {
  TokenRequest request(&border);
  QSignalSpy got(&request, &TokenRequest::got);
  QSignalSpy failed(&request, &TokenRequest::failed);
  askSilently(request);
  answer("earlier@cloud.example", {{QRT_ListingMeeting_exchOnlineToken, "another's"}});
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "old"}, {"isTokenExpired", true}});
  EXPECT_TRUE(got.isEmpty() && failed.isEmpty());
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "new"}, {"isTokenExpired", false}});
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "unasked"}});
  ASSERT_EQ(got.size(), 1);
  EXPECT_EQ(got.first().first().toString(), "new");

  askSilently(request);
  answer(kAskedEmail, {{"GetTokenFailed", true}});
  ASSERT_EQ(failed.size(), 1);
  EXPECT_TRUE(failed.first().first().toString().contains("could not be renewed. Detect the account again"));

  askSilently(request);
  request.cancel();
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "cancelled"}});
  EXPECT_EQ(got.size(), 1);
}

TEST_F(TokenRequestTest, ALateRenewalIsStillGivenAfterTheUserHasBeenTold) {
  TokenRequest request(&border, 20ms);
  QSignalSpy got(&request, &TokenRequest::got);
  QSignalSpy failed(&request, &TokenRequest::failed);
  askSilently(request);
  ASSERT_TRUE(failed.wait(2000));
  EXPECT_TRUE(failed.first().first().toString().contains("not renewed in time. Refresh"));
  answer(kAskedEmail, {{QRT_ListingMeeting_exchOnlineToken, "late"}, {"isTokenExpired", false}});
  ASSERT_EQ(got.size(), 1);
  EXPECT_EQ(got.first().first().toString(), "late");
  EXPECT_EQ(failed.size(), 1);
}

}  // namespace
