#include <QElapsedTimer>

#include "tests/adal/SignInFixture.h"

using Fault = sandbox::Authority::Fault;

namespace {

struct FaultCase {
  const char* name;
  Fault fault;
  ADErrorCode code;
};

constexpr FaultCase faultCases[] = {
    {"Silent", Fault::Silent, ADErrorCode::Network},
    {"Slow", Fault::Slow, ADErrorCode::Network},
    {"CutOff", Fault::CutOff, ADErrorCode::Network},
    {"ServerError", Fault::ServerError, ADErrorCode::Unavailable},
    {"Html", Fault::Html, ADErrorCode::ServerAnswer},
    {"Flood", Fault::Flood, ADErrorCode::ServerAnswer},
    {"RedirectElsewhere", Fault::RedirectElsewhere, ADErrorCode::ServerAnswer},
    {"NoUser", Fault::NoUser, ADErrorCode::ServerAnswer},
    {"NoAccessToken", Fault::NoAccessToken, ADErrorCode::ServerAnswer},
    {"OtherAudience", Fault::OtherAudience, ADErrorCode::ServerAnswer},
    {"InvalidGrant", Fault::InvalidGrant, ADErrorCode::InvalidGrant},
};

class TokenFaultTest : public SignInFixture, public testing::WithParamInterface<FaultCase> {
 protected:
  TokenFaultTest() {
    ADRequestLimits limits;
    limits.transfer = std::chrono::milliseconds(400);
    ADAuthenticationSettings::sharedInstance().setLimits(limits);
    EXPECT_TRUE(elsewhere.listen());
    elsewhere.handle("/", [this](const sandbox::HttpRequest&) {
      ++visitsElsewhere;
      return sandbox::HttpResponse();
    });
    authority->setFault(GetParam().fault, elsewhere.url().resolved(QUrl("/")));
    const QString user("alice@example.com");
    refreshToken = authority->grantRefreshToken("client-1");
    stored = {accessItem(user, authority->address()), refreshItem(user, authority->address(), refreshToken)};
    EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems(stored));
    writes = storage.writes.size();
  }

  void expectFailure(const Result& result) {
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, ADAuthenticationStatus::Failed);
    EXPECT_EQ(result->error->code, GetParam().code) << result->error->text().toStdString();
    EXPECT_FALSE(result->tokenCacheItem);
    EXPECT_EQ(items(), stored);
    EXPECT_EQ(storage.writes.size(), writes);
    EXPECT_EQ(visitsElsewhere, 0);
    EXPECT_FALSE(logged.join('\n').contains(refreshToken));
  }

  sandbox::HttpServer elsewhere;
  int visitsElsewhere = 0;
  QString refreshToken;
  QList<ADTokenCacheItem> stored;
  qsizetype writes = 0;
};

TEST_P(TokenFaultTest, SignInFailsAndLeavesTheTokens) {
  Result result;
  signIn(result);
  ASSERT_TRUE(waitForBrowser());
  visit(opened.first());
  static_cast<void>(waitFor(result, 3000));
  expectFailure(result);
}

TEST_P(TokenFaultTest, RefreshFailsAndLeavesTheTokens) {
  Result result;
  refresh(result, refreshToken);
  static_cast<void>(waitFor(result, 3000));
  expectFailure(result);
  EXPECT_EQ(authority->tokenRequests().size(), 1) << "tried again in vain";
}

INSTANTIATE_TEST_SUITE_P(Faults, TokenFaultTest, testing::ValuesIn(faultCases),
                         [](const auto& test) { return test.param.name; });

}  // namespace
