#include <QJsonArray>

#include "tests/adal/RefreshFixture.h"

namespace {

class ADTokenAnswerTest : public RefreshFixture {
 protected:
  ~ADTokenAnswerTest() override { setADClock(nullptr); }
};

TEST_F(ADTokenAnswerTest, FailuresTellWhetherToTryLater) {
  struct Case {
    int status;
    const char* error;
    ADErrorCode code;
    bool later;
  };
  constexpr Case cases[] = {{503, "", ADErrorCode::Unavailable, true},
                            {500, "invalid_grant", ADErrorCode::Unavailable, true},
                            {429, "", ADErrorCode::Unavailable, true},
                            {400, "temporarily_unavailable", ADErrorCode::Unavailable, true},
                            {400, "invalid_grant", ADErrorCode::InvalidGrant, false},
                            {400, "interaction_required", ADErrorCode::Refused, false},
                            {404, "", ADErrorCode::ServerAnswer, false}};
  const QList<ADTokenCacheItem> stored = items();
  for (const Case& wanted : cases) {
    provider.refuseNext(1, wanted.status, wanted.error);
    Result result;
    refresh(result, refreshToken);
    ASSERT_TRUE(waitFor(result));
    EXPECT_EQ(result->error->code, wanted.code) << wanted.status << wanted.error;
    EXPECT_EQ(canBeTriedLater(result->error->code), wanted.later) << wanted.status << wanted.error;
    EXPECT_EQ(items(), stored);
  }
  EXPECT_EQ(provider.requests().size(), std::ssize(cases));
}

TEST_F(ADTokenAnswerTest, AnswersAreTakenOrRefusedAsAWhole) {
  struct Case {
    const char* name;
    bool isTaken;
    TokenProvider::Edit edit;
  };
  using Json = QJsonObject;
  const Case cases[] = {
      {"no lifetime", true, [](Json& answer, Json&) { answer.remove("expires_in"); }},
      {"lifetime null", true, [](Json& answer, Json&) { answer.insert("expires_in", QJsonValue::Null); }},
      {"lifetime as text", true, [](Json& answer, Json&) { answer.insert("expires_in", "3600"); }},
      {"lifetime zero", false, [](Json& answer, Json&) { answer.insert("expires_in", 0); }},
      {"lifetime negative", false, [](Json& answer, Json&) { answer.insert("expires_in", -1); }},
      {"lifetime absurd", false, [](Json& answer, Json&) { answer.insert("expires_in", 1e300); }},
      {"lifetime no number", false, [](Json& answer, Json&) { answer.insert("expires_in", "nan"); }},
      {"no type", false, [](Json& answer, Json&) { answer.remove("token_type"); }},
      {"other type", false, [](Json& answer, Json&) { answer.insert("token_type", "mac"); }},
      {"type in lower case", true, [](Json& answer, Json&) { answer.insert("token_type", "bearer"); }},
      {"no id_token", true, [](Json&, Json& claims) { claims = {}; }},
      {"torn id_token", false,
       [](Json& answer, Json& claims) { answer.insert("id_token", "e30.e"), claims = {}; }},
      {"no audience", false, [](Json&, Json& claims) { claims.remove("aud"); }},
      {"other audience", false, [](Json&, Json& claims) { claims.insert("aud", "client-2"); }},
      {"audience as list", true, [](Json&, Json& claims) { claims.insert("aud", QJsonArray{"client-1"}); }},
      {"two audiences", false,
       [](Json&, Json& claims) {
         claims.insert("aud", QJsonArray{"client-1", "client-2"});
       }},
      {"two audiences, ours authorized", true,
       [](Json&, Json& claims) {
         claims.insert("aud", QJsonArray{"client-1", "client-2"});
         claims.insert("azp", "client-1");
       }},
      {"another authorized", false, [](Json&, Json& claims) { claims.insert("azp", "client-2"); }},
      {"no issuer", false, [](Json&, Json& claims) { claims.remove("iss"); }},
      {"other issuer", false, [](Json&, Json& claims) { claims.insert("iss", "https://login.example.com"); }},
      {"no expiry", false, [](Json&, Json& claims) { claims.remove("exp"); }},
      {"expired", false,
       [](Json&, Json& claims) { claims.insert("exp", QDateTime::currentSecsSinceEpoch() - 3600); }},
      {"user in another spelling", true,
       [](Json&, Json& claims) { claims.insert("upn", "ALICE@example.com"); }},
      {"user under another claim", true,
       [](Json&, Json& claims) {
         claims.insert("upn", "alice@old.example.com");
         claims.insert("email", "alice@example.com");
       }},
      {"other user", false, [](Json&, Json& claims) { claims.insert("upn", "bob@example.com"); }},
      {"only a subject", true, [](Json&, Json& claims) { claims.remove("upn"); }},
      {"no user at all", false,
       [](Json&, Json& claims) {
         claims.remove("upn");
         claims.remove("sub");
       }},
  };
  for (const Case& wanted : cases) {
    SCOPED_TRACE(wanted.name);
    const QString token = provider.grant(user);
    store({held(token)});
    provider.setEdit(wanted.edit);
    Result result;
    refresh(result, token);
    ASSERT_TRUE(waitFor(result));
    EXPECT_EQ(result->status == ADAuthenticationStatus::Succeeded, wanted.isTaken);
    EXPECT_EQ(storage.writes.size(), wanted.isTaken ? 1 : 0);
    if (!wanted.isTaken) {
      EXPECT_EQ(result->error->code, ADErrorCode::ServerAnswer);
      EXPECT_EQ(items(), QList{held(token)});
    } else {
      const qint64 lifetime = QDateTime::currentDateTimeUtc().secsTo(result->tokenCacheItem->expiresOn);
      EXPECT_NEAR(static_cast<double>(lifetime), 3600, 30);
    }
  }
}

TEST_F(ADTokenAnswerTest, AClockThatIsWrongOrJumpsDoesNoHarm) {
  provider.setEdit([](QJsonObject& answer, QJsonObject& claims) {
    answer.remove("expires_in");
    answer.insert("expires_on", claims.value("exp"));
  });
  provider.setDelay(std::chrono::milliseconds(50));
  constexpr ADClock clocks[] = {[] { return QDateTime::currentDateTimeUtc().addSecs(5400); },
                                [] { return QDateTime::currentDateTimeUtc().addDays(1); },
                                [] { return QDateTime::currentDateTimeUtc().addDays(-1); }};
  for (const ADClock& clock : clocks) {
    setADClock(nullptr);
    const qsizetype requests = provider.requests().size();
    Result result;
    refresh(result, items().last().refreshToken);
    ASSERT_TRUE(waitForRequests(requests + 1));
    setADClock(clock);
    ASSERT_TRUE(waitFor(result));
    ASSERT_EQ(result->status, ADAuthenticationStatus::Succeeded);
    EXPECT_NEAR(static_cast<double>(clock().secsTo(items().first().expiresOn)), 3600, 30);
  }
}

}  // namespace
