#include <QJsonDocument>
#include <QJsonObject>

#include "host/KZFoundation/KZConstants.h"
#include "tests/exchange/DiscoveryFixture.h"

namespace {

using ExchangeDiscoveryTest = DiscoveryFixture;

const QString onPremise = QStringLiteral("onprem@corp.sandbox.example");
const QString outsideUrl = QStringLiteral("https://mail.corp.sandbox.example/EWS/Exchange.asmx");

TEST_F(ExchangeDiscoveryTest, FindsAnExchangeWithAPassword) {
  detect(onPremise);
  const Dictionary need = waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential);
  EXPECT_EQ(need,
            (Dictionary{{kKZResult, kKZSuccess},
                        {QRT_ExchangeDiscover_ExchangeType, QRT_ExchangeDiscover_ExchangeTypeOnpremise}}));
  EXPECT_TRUE(challenges.isEmpty()) << "asked before the user had a chance to enter anything";
  EXPECT_TRUE(authorizedVisits().isEmpty());
  sinkPassword();
  const Dictionary exchange = waitForExchange();
  EXPECT_EQ(exchange, (Dictionary{{kKZCalendarIntegrationExchangeEmail, onPremise},
                                  {kKZCalendarIntegrationExchangeUsername, username},
                                  {kKZCalendarIntegrationExchangeExternalUrl, outsideUrl},
                                  {kKZCalendarIntegrationExchangeInternalUrl,
                                   "https://inside.corp.sandbox.example/EWS/Exchange.asmx"},
                                  {kKZCalendarIntegrationIsOnline, false}}));
  EXPECT_EQ(challenges, QList<Dictionary>{(Dictionary{{"AuthRequiringType", 1}})});
  ASSERT_EQ(authorizedVisits().size(), 1);
  EXPECT_TRUE(authorizedVisits().first().isEncrypted);
  EXPECT_EQ(authorizedVisits().first().host, "autodiscover.corp.sandbox.example");
  EXPECT_EQ(visitsOf("sandbox.example") + visitsOf("autodiscover.sandbox.example"), 0)
      << "above the mail domain";
  EXPECT_TRUE(asked.isEmpty());
}

TEST_F(ExchangeDiscoveryTest, AsksAWrongPasswordOnceAndReportsItAsAChallenge) {
  password = QStringLiteral("wrong:pässword");
  detect(onPremise);
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  sinkPassword();
  ASSERT_TRUE(QTest::qWaitFor([this] { return challenges.size() == 2; }));
  EXPECT_EQ(challenges.last(), (Dictionary{{"AuthRequiringType", 1}, {"ShowWarningMsg", "true"}}));
  sinkPassword();  // of a user who presses Apply once more
  expectNothingMore();
  ASSERT_EQ(authorizedVisits().size(), 1);
  EXPECT_EQ(authorizedVisits().first().authorization,
            "Basic " + QString(username + ":" + password).toUtf8().toBase64());
  EXPECT_FALSE(discovery->isRunning());
}

struct NoCredentialCase {
  const char* name;
  const char* username;
  const char* password;
  const char* message;
};

class NoCredentialTest : public DiscoveryFixture, public testing::WithParamInterface<NoCredentialCase> {};

TEST_P(NoCredentialTest, SendsNothing) {
  username = GetParam().username;
  password = GetParam().password;
  detect(onPremise);
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  sinkPassword();
  EXPECT_TRUE(waitForMessage().contains(GetParam().message));
  EXPECT_TRUE(authorizedVisits().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Credentials, NoCredentialTest,
                         testing::Values(NoCredentialCase{"NoPassword", "CORP\\onprem", "", "enter them"},
                                         NoCredentialCase{"Nothing", "", "", "enter them"},
                                         NoCredentialCase{"ColonInName", "CORP:onprem", "x", "colon"}),
                         [](const auto& test) { return test.param.name; });

TEST_F(ExchangeDiscoveryTest, HandsAnOnlineAccountToSignInAndGoesOnWithItsToken) {
  const QString email("online@cloud.sandbox.example");
  detect(email);
  const Dictionary need = waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential);
  EXPECT_EQ(textValue(need, kKZResult), kKZSuccess);
  EXPECT_FALSE(need.contains(QRT_ExchangeDiscover_ExchangeType));
  const QByteArray json = textValue(need, QRT_ExchangeDiscover_O365LoginParams).toUtf8();
  const QJsonObject parameters = QJsonDocument::fromJson(json).object();
  EXPECT_EQ(parameters.value("email").toString(), email);
  EXPECT_EQ(parameters.value("authority").toString(), "http://127.0.0.1:1/common");
  for (const char* key : {"resource", "clientId", "redirectUri"}) {
    EXPECT_FALSE(parameters.value(QLatin1String(key)).toString().isEmpty()) << key;
  }
  EXPECT_EQ(visitsOf("autodiscover.online.sandbox.example"), 0) << "a password might be asked for there";
  discovery->sinkCredential({{QRT_CredentialType, QRT_CredentialTypeOAuthToken},
                             {QRT_CredentialUsername, "user-id"},
                             {QRT_CredentialContent, "good-token"}});
  const Dictionary exchange = waitForExchange();
  EXPECT_TRUE(isSet(exchange, kKZCalendarIntegrationIsOnline));
  EXPECT_EQ(textValue(exchange, kKZCalendarIntegrationExchangeUsername), "user-id");
  EXPECT_EQ(textValue(exchange, kKZCalendarIntegrationExchangeExternalUrl),
            "https://mail.online.sandbox.example/EWS/Exchange.asmx");
  EXPECT_TRUE(challenges.isEmpty());
}

TEST_F(ExchangeDiscoveryTest, SaysThatATokenWasRefused) {
  detect("online@cloud.sandbox.example");
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  sinkPassword();  // of the other kind: it is dropped
  discovery->sinkCredential(
      {{QRT_CredentialType, QRT_CredentialTypeOAuthToken}, {QRT_CredentialContent, "bad-token"}});
  EXPECT_TRUE(waitForMessage().contains("sign in anew"));
  EXPECT_EQ(authorizedVisits().size(), 1);
}

struct ConsentCase {
  const char* name;
  const char* email;
  const char* askedAbout;
};

class ConsentTest : public DiscoveryFixture, public testing::WithParamInterface<ConsentCase> {};

TEST_P(ConsentTest, GoesOnWhenTheUserAllowsIt) {
  detect(GetParam().email);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !openQuestions.isEmpty(); }));
  EXPECT_EQ(asked, QStringList{GetParam().askedAbout});
  EXPECT_EQ(visitsOf("autodiscover.corp.sandbox.example"), 0) << "went there before it was allowed";
  allowEverything();
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  sinkPassword();
  const Dictionary exchange = waitForExchange();
  EXPECT_EQ(textValue(exchange, kKZCalendarIntegrationExchangeEmail), GetParam().email);
}

TEST_P(ConsentTest, StopsWhenTheUserDeclines) {
  detect(GetParam().email);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !openQuestions.isEmpty(); }));
  openQuestions.takeFirst()(false);
  EXPECT_TRUE(waitForMessage().contains("did not allow"));
  EXPECT_EQ(visitsOf("autodiscover.corp.sandbox.example"), 0);
}

TEST_P(ConsentTest, WithdrawsTheQuestionAndIgnoresALateAnswer) {
  detect(GetParam().email);
  ASSERT_TRUE(QTest::qWaitFor([this] { return !openQuestions.isEmpty(); }));
  discovery->cancel();
  EXPECT_EQ(withdrawn, 1);
  openQuestions.takeFirst()(true);
  expectNothingMore();
}

INSTANTIATE_TEST_SUITE_P(Ways, ConsentTest,
                         testing::Values(ConsentCase{"UnencryptedRedirect", "hosted@hosted.sandbox.example",
                                                     "autodiscover.corp.sandbox.example"},
                                         ConsentCase{"OtherMailDomain", "moved@moved.sandbox.example",
                                                     "corp.sandbox.example"}),
                         [](const auto& test) { return test.param.name; });

TEST_F(ExchangeDiscoveryTest, TakesTheServiceRecordOfLowestPriority) {
  configuration.stagger = std::chrono::seconds(5);
  detect("named@named.sandbox.example");
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  EXPECT_EQ(visitsOf("exchange.named.sandbox.example"), 1);
  EXPECT_EQ(visitsOf("spare.named.sandbox.example"), 0);
  EXPECT_TRUE(asked.isEmpty());
}

TEST_F(ExchangeDiscoveryTest, ReportsNothingAfterACancelAtAnyMoment) {
  for (const int moment : {0, 1, 3, 8, 20}) {
    detect(onPremise);
    QTest::qWait(moment);
    discovery->cancel();
    notified.clear();  // of a moment that came late
    expectNothingMore(60);
    EXPECT_FALSE(discovery->isRunning());
  }
  detect(onPremise);
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  sinkPassword();
  discovery->cancel();
  expectNothingMore();
  detect(onPremise);
  discovery.reset();
  expectNothingMore();
}

TEST_F(ExchangeDiscoveryTest, ANewSearchReplacesTheOneThatRuns) {
  detect("silent@silent.sandbox.example");
  QTest::qWait(20);
  detect(onPremise);
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  sinkPassword();
  EXPECT_EQ(textValue(waitForExchange(), kKZCalendarIntegrationExchangeEmail), onPremise);
  expectNothingMore(500);
}

}  // namespace
