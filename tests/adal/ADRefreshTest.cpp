#include "sandbox/Responses.h"
#include "tests/adal/RefreshFixture.h"

namespace {

using namespace std::chrono_literals;

const QString files("https://files.example.com");

QString sentToken(const QUrlQuery& request) {
  return request.queryItemValue("refresh_token", QUrl::FullyDecoded);
}

class ADRefreshTest : public RefreshFixture {
 protected:
  void refreshAt(ADAuthenticationContext& at, Result& result, const QString& token,
                 const QString& resource = QStringLiteral("https://mail.example.com")) {
    at.acquireTokenWithRefreshToken(token, resource, "client-1", QUrl(),
                                    [this, &result](const ADAuthenticationResult& answer) {
                                      EXPECT_FALSE(result) << "answered twice";
                                      result = answer;
                                      answered.append(&result);
                                    });
  }

  QList<const Result*> answered;  // in their order
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

  Result again;
  refresh(again, items().at(1).refreshToken);
  ASSERT_TRUE(waitFor(again));
  EXPECT_EQ(again->status, ADAuthenticationStatus::Succeeded);
  EXPECT_EQ(items().size(), 2);
}

TEST_F(ADRefreshTest, ATokenIsRedeemedOnceAtATime) {
  provider.setDelay(50ms);
  auto other = contextFor(provider.authority());
  auto leaving = contextFor(provider.authority());
  Result left;
  Result first;
  Result equal;
  Result elsewhere;
  Result elsewhereToo;
  refreshAt(*leaving, left, refreshToken);
  refreshAt(*context, first, refreshToken);
  refreshAt(*other, equal, refreshToken);
  refreshAt(*other, elsewhere, refreshToken, files);
  leaving.reset();
  ASSERT_TRUE(waitFor(first));
  const QString successor = items().last().refreshToken;
  refreshAt(*context, elsewhereToo, successor, files);
  ASSERT_TRUE(waitFor(elsewhereToo));

  EXPECT_FALSE(left);
  for (const Result* result : {&first, &equal, &elsewhere, &elsewhereToo}) {
    ASSERT_TRUE(*result);
    EXPECT_EQ((*result)->status, ADAuthenticationStatus::Succeeded);
  }
  EXPECT_EQ(first->tokenCacheItem, equal->tokenCacheItem);
  EXPECT_EQ(elsewhere->tokenCacheItem, elsewhereToo->tokenCacheItem);
  EXPECT_EQ(elsewhere->tokenCacheItem->resource, files);
  ASSERT_EQ(provider.requests().size(), 2);
  EXPECT_EQ(sentToken(provider.requests().at(1)), successor);
  EXPECT_EQ(provider.reuses(), 0);
}

TEST_F(ADRefreshTest, WhoWaitsGoesOnWhenTheOthersAreGone) {
  provider.setDelay(200ms);
  auto leaving = contextFor(provider.authority());
  Result left;
  Result waiting;
  refreshAt(*leaving, left, refreshToken);
  refreshAt(*context, waiting, refreshToken, files);
  leaving.reset();
  ASSERT_TRUE(waitFor(waiting));
  EXPECT_EQ(waiting->status, ADAuthenticationStatus::Succeeded);
  EXPECT_FALSE(left);
  EXPECT_EQ(provider.requests().size(), 1) << "nothing was sent for the one that left";
}

TEST_F(ADRefreshTest, ATokenThatWasSentIsReplacedThoughNobodyWaitsAnyMore) {
  provider.setDelay(100ms);
  Result left;
  refreshAt(*context, left, refreshToken);
  ASSERT_TRUE(waitForRequests(1));
  context = contextFor(provider.authority());
  Result next;
  refreshAt(*context, next, refreshToken, files);
  ASSERT_TRUE(waitFor(next));
  EXPECT_EQ(next->status, ADAuthenticationStatus::Succeeded);
  EXPECT_FALSE(left);
  EXPECT_EQ(provider.reuses(), 0);
}

TEST_F(ADRefreshTest, EachOfManyGetsItsOwnAnswerWhateverTheOrder) {
  const QString bob("bob@example.com");
  const QString bobs = provider.grant(bob);
  store({held(refreshToken), refreshItem(bob, provider.authority(), bobs)});
  provider.setNextDelays({300ms, 0ms});
  Result alice;
  Result other;
  refreshAt(*context, alice, refreshToken);
  ASSERT_TRUE(waitForRequests(1));
  refreshAt(*context, other, bobs);
  ASSERT_TRUE(waitFor(alice));
  EXPECT_EQ(answered, (QList<const Result*>{&other, &alice}));
  EXPECT_TRUE(other->tokenCacheItem->accessToken.startsWith("access-of-bob@example.com-"));
  EXPECT_TRUE(alice->tokenCacheItem->accessToken.startsWith("access-of-Alice@Example.com-"));
}

TEST_F(ADRefreshTest, ATokenIsSentOnlyToItsOwnAuthorityAsItsOwnClient) {
  TokenProvider stranger;
  ADTokenCacheItem otherClient = held(refreshToken);
  otherClient.clientId = "client-2";
  const ADTokenCacheItem elsewhere = refreshItem(user, stranger.authority(), refreshToken);
  for (const ADTokenCacheItem& holder : {otherClient, elsewhere}) {
    store({accessItem(user, provider.authority()), holder});
    Result result;
    refresh(result, refreshToken);
    ASSERT_TRUE(waitFor(result));
    EXPECT_EQ(result->error->code, ADErrorCode::InvalidArgument);
    EXPECT_TRUE(provider.requests().isEmpty());
    EXPECT_EQ(items().last(), holder);
  }
  Result busy;
  ASSERT_FALSE(
      ADTokenCache::defaultCache().change([&](auto&) { return refresh(busy, refreshToken), false; }));
  ASSERT_TRUE(waitFor(busy));
  EXPECT_EQ(busy->error->code, ADErrorCode::CacheBusy) << "whose it is cannot be seen";
  EXPECT_TRUE(provider.requests().isEmpty());
  ADTokenCacheItem sameOrigin = held(refreshToken);
  sameOrigin.authority.replace("/common", "/tenant");
  store({sameOrigin});
  Result result;
  refresh(result, refreshToken);
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
  EXPECT_EQ(items().first().authority, sameOrigin.authority);
  EXPECT_NE(items().first().refreshToken, refreshToken);
}

TEST_F(ADRefreshTest, WhatWasStoredOrRemovedMeanwhileStays) {
  provider.setDelay(50ms);
  const QList<ADTokenCacheItem> cases[] = {
      {}, {accessItem(user, provider.authority())}, {held("refresh-of-a-new-sign-in")}};
  for (const QList<ADTokenCacheItem>& meanwhile : cases) {
    const QString token = provider.grant(user);
    store({accessItem(user, provider.authority()), held(token)});
    const qsizetype requests = provider.requests().size();
    Result result;
    refresh(result, token);
    ASSERT_TRUE(waitForRequests(requests + 1));
    storage.replace(meanwhile);
    ASSERT_TRUE(waitFor(result));
    const bool isHeld = !meanwhile.isEmpty() && meanwhile.last().isMultiResourceRefreshToken();
    EXPECT_EQ(result->status == ADAuthenticationStatus::Succeeded, isHeld);
    EXPECT_EQ(items(), meanwhile);
    EXPECT_TRUE(storage.writes.isEmpty());
  }
}

TEST_F(ADRefreshTest, InvalidGrantTriesTheTokenOfAnotherProcess) {
  const QString theirs = provider.grant(user);
  const QString bobs = provider.grant("bob@example.com");
  const ADTokenCacheItem bob = refreshItem("bob@example.com", provider.authority(), bobs);
  store({accessItem(user, provider.authority()), bob, held("refresh-revoked")});
  provider.setNextDelays({100ms});
  Result result;
  refresh(result, "refresh-revoked");
  ASSERT_TRUE(waitForRequests(1));
  storage.replace({accessItem(user, provider.authority()), bob, held(theirs)});
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
  ASSERT_EQ(provider.requests().size(), 2);
  EXPECT_EQ(sentToken(provider.requests().at(1)), theirs);
  ASSERT_EQ(items().size(), 3);
  EXPECT_EQ(items().at(1), bob);
  EXPECT_NE(items().at(2).refreshToken, theirs);
}

TEST_F(ADRefreshTest, InvalidGrantIsTriedAgainOnceOnly) {
  store({held("refresh-revoked")});
  provider.setDelay(100ms);
  Result result;
  refresh(result, "refresh-revoked");
  ASSERT_TRUE(waitForRequests(1));
  storage.replace({held("refresh-revoked-too")});
  ASSERT_TRUE(waitForRequests(2));
  storage.replace({held(refreshToken)});
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->error->code, ADErrorCode::InvalidGrant);
  EXPECT_EQ(provider.requests().size(), 2);
}

TEST_F(ADRefreshTest, ATokenThatIsNotStoredIsNotReplacedByAnotherUsers) {
  store({refreshItem("bob@example.com", provider.authority(), provider.grant("bob@example.com"))});
  Result result;
  refresh(result, "refresh-unknown");
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->error->code, ADErrorCode::InvalidGrant);
  EXPECT_EQ(provider.requests().size(), 1);
}

TEST_F(ADRefreshTest, ScopesThatWereRefusedAreNotAskedForAgain) {
  provider.setRefusesScopes(true);
  for (int round = 0; round < 2; ++round) {
    Result result;
    refreshAt(*context, result, items().last().refreshToken, "https://refused.example.com");
    ASSERT_TRUE(waitFor(result));
    EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
    // The access token of the first round was appended.
    store({held(items().at(1).refreshToken)});
  }
  QList<bool> named;
  for (const QUrlQuery& request : provider.requests()) named.append(request.hasQueryItem("scope"));
  EXPECT_EQ(named, (QList<bool>{true, false, false}));
}

TEST_F(ADRefreshTest, AProviderThatStopsOrStartsAgainCostsAnAnswerAndNotTheToken) {
  const QList<ADTokenCacheItem> stored = items();
  provider.setDelay(10s);
  Result cutOff;
  refresh(cutOff, refreshToken);
  ASSERT_TRUE(waitForRequests(1));
  provider.stop();
  ASSERT_TRUE(waitFor(cutOff));
  Result closed;
  refresh(closed, refreshToken);
  ASSERT_TRUE(waitFor(closed));
  for (const Result& result : {cutOff, closed}) {
    EXPECT_EQ(result->error->code, ADErrorCode::Network);
    EXPECT_TRUE(canBeTriedLater(result->error->code));
  }
  EXPECT_EQ(items(), stored);
  EXPECT_TRUE(storage.writes.isEmpty());

  provider.start();
  provider.setDelay(0s);
  const QString fresh = provider.grant(user);
  store({held(fresh)});
  Result result;
  refresh(result, fresh);
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
}

TEST_F(ADRefreshTest, ASignInIsAnsweredAfterTheRefreshesInProgress) {
  auto signInContext = contextFor(authority->address());
  std::swap(context, signInContext);
  Result signedIn;
  signIn(signedIn);
  ASSERT_TRUE(waitForBrowser());
  provider.setDelay(400ms);
  Result refreshed;
  refreshAt(*signInContext, refreshed, refreshToken);
  visit(opened.first());
  ASSERT_TRUE(QTest::qWaitFor([&] { return !storage.writes.isEmpty(); })) << "the sign-in's tokens";
  EXPECT_FALSE(refreshed);
  Result second;  // an earlier result must not be lost with it
  refreshAt(*context, second, "refresh-unknown");
  ASSERT_TRUE(waitFor(refreshed));
  EXPECT_FALSE(signedIn);
  ASSERT_TRUE(waitFor(signedIn));
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
