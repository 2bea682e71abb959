#include "tests/adal/SignInFixture.h"

namespace {

class ADRefreshTest : public SignInFixture {
 protected:
  ADRefreshTest() : refreshToken(authority->grantRefreshToken("client-1")) {
    store({accessItem(user, authority->address()), refreshItem(user, authority->address(), refreshToken)});
  }

  void store(const QList<ADTokenCacheItem>& wanted) {
    ASSERT_FALSE(ADTokenCache::defaultCache().replaceAllItems(wanted));
    storage.writes.clear();
  }

  const QString user = QStringLiteral("Alice@Example.com");
  QString refreshToken;
};

TEST_F(ADRefreshTest, StoresTheSuccessorInTheOldOnesPlaceInOneWrite) {
  Result result;
  refresh(result, refreshToken);
  ASSERT_TRUE(waitFor(result));
  ASSERT_EQ(result->status, ADAuthenticationStatus::Succeeded);
  ASSERT_EQ(storage.writes.size(), 1) << "no moment with the old token gone and the new one not there";
  ASSERT_EQ(items().size(), 2);
  EXPECT_EQ(items().at(0), *result->tokenCacheItem);
  EXPECT_EQ(items().at(0).userInformation.userId, user) << "the stored spelling stays";
  EXPECT_TRUE(items().at(1).isMultiResourceRefreshToken());
  EXPECT_NE(items().at(1).refreshToken, refreshToken);

  Result again;
  refresh(again, items().at(1).refreshToken);
  ASSERT_TRUE(waitFor(again));
  EXPECT_EQ(again->status, ADAuthenticationStatus::Succeeded);
  EXPECT_EQ(items().size(), 2);
}

TEST_F(ADRefreshTest, InvalidGrantTriesTheTokenOfAnotherProcess) {
  const QString theirs = authority->grantRefreshToken("client-1");
  const QString strangers = authority->grantRefreshToken("client-1");
  const QString revoked("refresh-revoked");
  const auto inCache = [this](const QString& token) {
    return refreshItem(user, authority->address(), token);
  };
  const ADTokenCacheItem stranger = refreshItem("bob@example.com", authority->address(), strangers);
  store({accessItem(user, authority->address()), stranger, inCache(revoked)});

  Result result;
  refresh(result, revoked);
  storage.replace({accessItem(user, authority->address()), stranger, inCache(theirs)});
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
  ASSERT_EQ(authority->tokenRequests().size(), 2);
  EXPECT_EQ(authority->tokenRequests().at(1).queryItemValue("refresh_token"), theirs);
  ASSERT_EQ(items().size(), 3);
  EXPECT_EQ(items().at(1), stranger);
  EXPECT_NE(items().at(2).refreshToken, theirs);
}

TEST_F(ADRefreshTest, InvalidGrantIsTriedAgainOnceOnly) {
  const QString revoked("refresh-revoked");
  store({refreshItem(user, authority->address(), revoked)});
  authority->setFault(sandbox::Authority::Fault::InvalidGrant);
  Result result;
  refresh(result, revoked);
  storage.replace({refreshItem(user, authority->address(), "refresh-newer")});
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->error->code, ADErrorCode::InvalidGrant);
  EXPECT_EQ(authority->tokenRequests().size(), 2);
}

TEST_F(ADRefreshTest, ATokenThatIsNotStoredIsNotReplacedByAnotherUsers) {
  store({refreshItem("bob@example.com", authority->address(), authority->grantRefreshToken("client-1"))});
  Result result;
  refresh(result, "refresh-unknown");
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->error->code, ADErrorCode::InvalidGrant);
  EXPECT_EQ(authority->tokenRequests().size(), 1);
}

TEST_F(ADRefreshTest, NetworkErrorLeavesTheTokens) {
  const QList<ADTokenCacheItem> stored = items();
  ADError error;
  context = ADAuthenticationContext::initWithAuthority("http://127.0.0.1:1/common",
                                                       ADAuthorityValidation::Off, error);
  Result result;
  refresh(result, refreshToken);
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->error->code, ADErrorCode::Network);
  EXPECT_EQ(items(), stored);
  EXPECT_TRUE(storage.writes.isEmpty());
}

TEST_F(ADRefreshTest, CompletionMayDestroyTheContext) {
  bool isDone = false;
  context->acquireTokenWithRefreshToken(refreshToken, {}, "client-1", QUrl(),
                                        [&](const ADAuthenticationResult&) {
                                          context.reset();
                                          isDone = true;
                                        });
  EXPECT_TRUE(QTest::qWaitFor([&] { return isDone; }));
}

}  // namespace
