#include <QJsonObject>
#include <QNetworkReply>
#include <QSet>

#include "tests/adal/SignInFixture.h"

using sandbox::Authority;

namespace {

class ADSignInTest : public SignInFixture {};

QString asked(const QUrlQuery& query, const char* name) {
  return query.queryItemValue(QLatin1String(name), QUrl::FullyDecoded);
}

TEST_F(ADSignInTest, SucceedsWithEitherGenerationAndWithoutConfiguration) {
  struct Case {
    Authority::Generation generation;
    bool hasConfiguration;
    const char* redirect;
    QString resource;
    QString scope;
    QString prompt;
  };
  const Case cases[] = {
      {Authority::Generation::Resource, true, "http://127.0.0.1/done", "https://mail.example.com", "openid",
       "login"},
      {Authority::Generation::Resource, false, "http://localhost/done", "https://mail.example.com", "openid",
       "login"},
      {Authority::Generation::Scope, true, "http://127.0.0.1/done", "",
       "openid offline_access https://mail.example.com/.default", "login consent"},
  };
  QSet<QString> states;
  for (const Case& wanted : cases) {
    SCOPED_TRACE(wanted.scope.toStdString());
    authority->setGeneration(wanted.generation);
    authority->setHasConfiguration(wanted.hasConfiguration);
    ADTokenCacheItem superseded = accessItem("alice@example.com", authority->address());
    superseded.clientId = "client-before";
    ASSERT_FALSE(ADTokenCache::defaultCache().replaceAllItems({superseded}));
    opened.clear();
    Result result;
    signIn(result, QUrl(wanted.redirect));
    ASSERT_TRUE(waitForBrowser());
    visit(opened.last());
    ASSERT_TRUE(waitFor(result));

    ASSERT_EQ(result->status, ADAuthenticationStatus::Succeeded);
    ASSERT_TRUE(result->tokenCacheItem);
    EXPECT_EQ(result->tokenCacheItem->userInformation.userId, "alice@example.com");
    ASSERT_EQ(items().size(), 2);
    EXPECT_TRUE(items().first().isMultiResourceRefreshToken());
    EXPECT_EQ(items().last(), *result->tokenCacheItem);
    EXPECT_FALSE(items().last().isExpired());
    EXPECT_EQ(storage.writes.last(), ADTokenCache::defaultCache().serialize());

    const QUrlQuery page = authority->pageRequests().last();
    EXPECT_EQ(asked(page, "login_hint"), "alice+work@example.com");
    EXPECT_EQ(asked(page, "prompt"), wanted.prompt);
    for (const QUrlQuery& request : {page, authority->tokenRequests().last()}) {
      EXPECT_EQ(asked(request, "resource"), wanted.resource);
      EXPECT_EQ(asked(request, "scope"), wanted.scope);
    }
    const QUrl redirect(asked(page, "redirect_uri"));
    EXPECT_EQ(redirect.host(), QUrl(wanted.redirect).host());
    EXPECT_EQ(redirect.path(), "/done");
    EXPECT_GT(redirect.port(), 1023);
    states.insert(asked(page, "state"));
    states.insert(asked(authority->tokenRequests().last(), "code_verifier"));
  }
  EXPECT_EQ(states.size(), 2 * std::size(cases)) << "states and verifiers must be fresh for every request";
}

TEST_F(ADSignInTest, TakesTheFirstClaimThatNamesTheUser) {
  QJsonObject claims{{"sub", "subject"},
                     {"email", "email@example.com"},
                     {"unique_name", "unique@example.com"},
                     {"preferred_username", "preferred@example.com"},
                     {"upn", "upn@example.com"}};
  for (const char* claim : {"upn", "preferred_username", "unique_name", "email", "sub"}) {
    authority->setUserClaims(claims);
    Result result;
    signIn(result);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !opened.isEmpty(); }));
    visit(opened.takeFirst());
    ASSERT_TRUE(waitFor(result));
    ASSERT_TRUE(result->tokenCacheItem) << claim;
    EXPECT_EQ(result->tokenCacheItem->userInformation.userId, claims.value(QLatin1String(claim)).toString());
    claims.remove(QLatin1String(claim));
  }
}

TEST_F(ADSignInTest, SameRequestWhileOneWaitsOpensNoSecondBrowser) {
  Result first;
  Result second;
  signIn(first);
  ASSERT_TRUE(waitForBrowser());
  ADError error;
  auto other =
      ADAuthenticationContext::initWithAuthority(authority->address(), ADAuthorityValidation::Off, error);
  std::swap(other, context);
  signIn(second);
  visit(opened.first());
  ASSERT_TRUE(waitFor(first));
  ASSERT_TRUE(waitFor(second));
  EXPECT_EQ(opened.size(), 1);
  EXPECT_EQ(first->tokenCacheItem, second->tokenCacheItem);
  EXPECT_EQ(authority->tokenRequests().size(), 1);

  Result third;
  signIn(third);
  EXPECT_TRUE(waitForBrowser(2)) << "the one before is over";
}

TEST_F(ADSignInTest, DestroyedContextIsNotAnswered) {
  Result shared;
  Result left;
  signIn(shared);
  ADError error;
  auto other =
      ADAuthenticationContext::initWithAuthority(authority->address(), ADAuthorityValidation::Off, error);
  std::swap(other, context);
  signIn(left);
  ASSERT_TRUE(waitForBrowser());
  context.reset();
  visit(opened.first());
  ASSERT_TRUE(waitFor(shared)) << "the other one's sign-in goes on";
  EXPECT_EQ(shared->status, ADAuthenticationStatus::Succeeded);
  EXPECT_FALSE(left);

  context = std::move(other);
  signIn(left);
  ASSERT_TRUE(waitForBrowser(2));
  const QUrl redirect = redirectOf(opened.last());
  context.reset();
  EXPECT_FALSE(sendRaw(redirect.host(), redirect.port(), "GET / HTTP/1.1\r\n\r\n"));
  const QNetworkReply* const page = visit(opened.last());
  ASSERT_TRUE(QTest::qWaitFor([page] { return page->isFinished(); }));
  EXPECT_FALSE(left);
  EXPECT_EQ(authority->tokenRequests().size(), 1);
}

TEST_F(ADSignInTest, OpensNothingAfterTheApplicationsEnd) {
  Result result;
  signIn(result);
  ASSERT_TRUE(QMetaObject::invokeMethod(QCoreApplication::instance(), "aboutToQuit"));
  QTest::qWait(100);
  EXPECT_TRUE(opened.isEmpty());
}

TEST_F(ADSignInTest, AuthorityMustBeProtectedOrLocal) {
  const char* const notAllowed[] = {
      "http://login.example.com/common",
      "http://127.0.0.1.example.com/",
      "https://user:pw@example.com/",
      "https://login.example.com/?tenant=1",
      "https://login.example.com/#tenant",
      "ftp://127.0.0.1/",
      "urn:login",
      "login.example.com",
      "https://",
  };
  for (const char* address : notAllowed) {
    SCOPED_TRACE(address);
    ADError error;
    context =
        ADAuthenticationContext::initWithAuthority(QLatin1String(address), ADAuthorityValidation::Off, error);
    ASSERT_TRUE(context);
    Result signedIn;
    Result refreshed;
    signIn(signedIn);
    refresh(refreshed, "refresh-1");
    EXPECT_FALSE(signedIn || refreshed) << "before the call returned";
    ASSERT_TRUE(waitFor(signedIn));
    ASSERT_TRUE(waitFor(refreshed));
    EXPECT_EQ(signedIn->error->code, ADErrorCode::AddressNotAllowed);
    EXPECT_EQ(refreshed->error->code, ADErrorCode::AddressNotAllowed);
  }
  EXPECT_TRUE(opened.isEmpty());
  for (const char* address : {"", "http://a b", "http://[::1", "https://example.com:99999/"}) {
    ADError error;
    EXPECT_FALSE(
        ADAuthenticationContext::initWithAuthority(QLatin1String(address), ADAuthorityValidation::Off, error))
        << address;
    EXPECT_EQ(error.code, ADErrorCode::InvalidArgument) << address;
  }
}

TEST_F(ADSignInTest, LogsNoSecretEvenWithPersonalData) {
  Result signedIn;
  signIn(signedIn);
  ASSERT_TRUE(waitForBrowser());
  visit(opened.first());
  ASSERT_TRUE(waitFor(signedIn));
  const QString oldRefreshToken = items().first().refreshToken;
  Result refreshed;
  refresh(refreshed, oldRefreshToken);
  ASSERT_TRUE(waitFor(refreshed));
  Result failed;
  refresh(failed, oldRefreshToken);
  ASSERT_TRUE(waitFor(failed));

  const QString log = logged.join('\n');
  EXPECT_TRUE(log.contains("alice+work@example.com")) << "personal data is on, or this test sees nothing";
  QStringList secrets{oldRefreshToken, items().first().refreshToken, signedIn->tokenCacheItem->accessToken,
                      refreshed->tokenCacheItem->accessToken, queryValue(opened.first(), "state")};
  for (const QUrlQuery& request : authority->tokenRequests()) {
    for (const char* name : {"code", "code_verifier", "refresh_token"}) secrets.append(asked(request, name));
  }
  secrets.removeAll(QString());
  EXPECT_GE(secrets.size(), 9);
  for (const QString& secret : secrets) EXPECT_FALSE(log.contains(secret)) << secret.toStdString();
}

}  // namespace
