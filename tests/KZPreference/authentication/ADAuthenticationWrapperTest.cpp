#include "KZPreference/authentication/ADAuthenticationWrapper.h"

#include <gtest/gtest.h>

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTest>
#include <QUrl>
#include <thread>

#include "KZPreference/authentication/AdalMivraLogDelegate.h"
#include "KZPreference/authentication/MainThreadInvoker.h"
#include "KZPreference/authentication/TokenRequests.h"
#include "KZPreference/core/PreferenceActionDelegate.h"
#include "adal/ADAuthenticationSettings.h"
#include "adal/ADLogger.h"
#include "adal/ADTokenCache.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZWorkspace.h"
#include "sandbox/Authority.h"
#include "sandbox/HttpServer.h"
#include "tests/kit/TraceCollector.h"

namespace {

class Host final : public PluginCommandSender, public ExchangeResolveResultReceiving {
 public:
  quint64 sendPluginCommand(KZCommand command, const Content& content) override {
    (command == KZCommand::KZCmdSinkOutlookAccountCredential ? credentials : tokens).append(*content);
    return 0;
  }
  void onExchangeResolveDone(const Dictionary& result) override { resolved.append(result); }

  qsizetype calls() const { return credentials.size() + tokens.size() + resolved.size(); }

  QList<Dictionary> credentials;
  QList<Dictionary> tokens;
  QList<Dictionary> resolved;
};

const Dictionary failedResult{{kKZResult, kKZFail},
                              {kKZErrorHandleData, Dictionary{{kKZErrorMessage, "Applied failed"}}}};

class ADAuthenticationWrapperTest : public testing::Test {
 protected:
  ADAuthenticationWrapperTest() {
    ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(nullptr);
    EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
    EXPECT_TRUE(server.listen());
    authority = std::make_unique<sandbox::Authority>(server, "/common");
    KZWorkspace::sharedWorkspace().setOpener([this](const QUrl& address) {
      opened.append(address);
      return true;
    });
    AdalMivraLogDelegate::load();
    wrapper = std::make_unique<ADAuthenticationWrapper>(&delegate);
    wrapper->setExchangeResolveResultReceiver(&host);
  }
  ~ADAuthenticationWrapperTest() override {
    wrapper.reset();
    KZWorkspace::sharedWorkspace().setOpener({});
    ADLogger::setLoggerCallback({});
    EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
  }

  Dictionary params(const QString& refreshToken = QString()) const {
    Dictionary wanted{{"authority", authority->address()},
                      {"resource", "https://mail.example.com"},
                      {"clientId", "client-1"},
                      {"redirectUri", "http://127.0.0.1"},
                      {"email", "alice@example.com"}};
    if (!refreshToken.isNull()) wanted.insert("refreshToken", refreshToken);
    return wanted;
  }
  bool waitForCalls(qsizetype count) {
    return QTest::qWaitFor([&] { return host.calls() >= count; });
  }
  void signIn() {
    wrapper->startWithParams(params());
    browseLast();
  }
  void browseLast() {
    ASSERT_TRUE(QTest::qWaitFor([&] { return !opened.isEmpty(); }));
    QNetworkReply* const reply = browser.get(QNetworkRequest(opened.last()));
    QObject::connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
  }
  static QString storedRefreshToken() {
    return ADTokenCache::defaultCache().allItems().items.first().refreshToken;
  }

  TraceCollector trace;
  Host host;
  PreferenceActionDelegate delegate{&host};
  sandbox::HttpServer server;
  std::unique_ptr<sandbox::Authority> authority;
  QNetworkAccessManager browser;
  QList<QUrl> opened;
  std::unique_ptr<ADAuthenticationWrapper> wrapper;
};

TEST_F(ADAuthenticationWrapperTest, SignInBecomesACredentialOrAFailedResult) {
  signIn();
  ASSERT_TRUE(waitForCalls(1));
  ASSERT_EQ(host.credentials.size(), 1);
  const QString token = ADTokenCache::defaultCache().allItems().items.last().accessToken;
  EXPECT_EQ(host.credentials.first(), (Dictionary{{QRT_CredentialType, QRT_CredentialTypeOAuthToken},
                                                  {QRT_CredentialUsername, "alice@example.com"},
                                                  {QRT_CredentialContent, token}}));
  opened.clear();
  authority->setConsent(sandbox::Authority::Consent::Refuse);
  signIn();
  ASSERT_TRUE(waitForCalls(2));
  EXPECT_EQ(host.resolved, QList<Dictionary>{failedResult});

  opened.clear();
  wrapper->setExchangeResolveResultReceiver(nullptr);
  signIn();
  ASSERT_TRUE(QTest::qWaitFor([this] { return trace.lines().filter("error status:2").size() == 2; }));
  EXPECT_EQ(host.calls(), 2);

  wrapper->setExchangeResolveResultReceiver(&host);
  opened.clear();
  QLocale::setDefault(QLocale::German);
  signIn();
  EXPECT_TRUE(waitForCalls(3));
  QLocale::setDefault(QLocale::c());
  EXPECT_EQ(textValue(dictionaryValue(host.resolved.last(), kKZErrorHandleData), kKZErrorMessage),
            "Übernehmen fehlgeschlagen");
}

TEST_F(ADAuthenticationWrapperTest, RefreshRepeatsTheRequest) {
  const Dictionary request{
      {"site", "one.example.com"}, {"isTokenExpired", true}, {"depth", Dictionary{{"a", 1}}}};
  wrapper->refreshTokenWithParams(params(authority->grantRefreshToken("client-1")), request);
  ASSERT_TRUE(waitForCalls(1));
  Dictionary wanted = request;
  wanted.insert("isTokenExpired", false);
  wanted.insert(QRT_ListingMeeting_exchOnlineToken,
                host.tokens.first().value(QRT_ListingMeeting_exchOnlineToken));
  EXPECT_EQ(host.tokens.first(), wanted);
  EXPECT_TRUE(textValue(wanted, QRT_ListingMeeting_exchOnlineToken).startsWith("access-"));

  wrapper->refreshTokenWithParams(params("refresh-revoked"), {});
  ASSERT_TRUE(waitForCalls(2));
  EXPECT_EQ(host.tokens.last(),
            (Dictionary{{"GetTokenFailed", true}, {"GetTokenFailedReason", "SignInAgain"}}))
      << "nothing is left of the last request";
  signIn();
  ASSERT_TRUE(waitForCalls(3));
  EXPECT_EQ(host.credentials.size(), 1);
}

TEST_F(ADAuthenticationWrapperTest, ARequestThatCannotStartReportsNothing) {
  wrapper->startWithParams({});
  Dictionary unusable = params();
  unusable.insert("authority", "");
  wrapper->startWithParams(unusable);
  EXPECT_TRUE(trace.has(
      "error Failed to create AuthenticationContext:invalid argument: the authority is no address"));
  QTest::qWait(50);
  EXPECT_EQ(host.calls(), 0);
  EXPECT_TRUE(opened.isEmpty());
}

TEST_F(ADAuthenticationWrapperTest, FlagDecidesAtCompletionHowItIsReported) {
  Dictionary unusable = params();
  unusable.insert("authority", "");
  wrapper->refreshTokenWithParams(unusable, {{"request", 7}});
  signIn();
  ASSERT_TRUE(waitForCalls(1));
  ASSERT_EQ(host.tokens.size(), 1) << "the refresh that never started is still open";
  EXPECT_EQ(host.tokens.first().value("request"), 7);
  opened.clear();
  signIn();
  ASSERT_TRUE(waitForCalls(2));
  EXPECT_EQ(host.credentials.size(), 1);
}

TEST_F(ADAuthenticationWrapperTest, SuccessWithoutAnItemReportsNothingAndKeepsTheFlag) {
  wrapper->onTokenAcquired({ADAuthenticationStatus::Succeeded, {}, {}});
  EXPECT_TRUE(trace.has("error cacheItem is nil"));
  EXPECT_EQ(host.calls(), 0);
  wrapper->onTokenAcquired(ADAuthenticationResult::failed({ADErrorCode::Network, {}}));
  EXPECT_EQ(host.resolved.size(), 1);
  EXPECT_EQ(wrapper->generateExchResolvingFailedResult({ADAuthenticationStatus::Succeeded, {}, {}}),
            Dictionary());
}

TEST_F(ADAuthenticationWrapperTest, DestroyingItCancelsItsRequests) {
  wrapper->refreshTokenWithParams(params(authority->grantRefreshToken("client-1")), {});
  signIn();
  wrapper.reset();
  QTest::qWait(100);
  EXPECT_EQ(host.calls(), 0);
}

// Between the result's arrival and its report.
TEST_F(ADAuthenticationWrapperTest, ASignInsResultIsReportedAsItsOwnOrNotAtAll) {
  ADTokenCacheItem access;
  access.userInformation.userId = "bob@example.com";
  access.authority = authority->address();
  access.clientId = "client-1";
  access.accessToken = "stale";
  ADTokenCacheItem refresh = access;
  refresh.refreshToken = authority->grantRefreshToken("client-1");
  refresh.multiResource = true;
  ASSERT_FALSE(ADTokenCache::defaultCache().replaceAllItems({access, refresh}));
  TokenRequests requests(wrapper.get(), &host);
  signIn();
  ASSERT_TRUE(QTest::qWaitFor([this] { return wrapper->hasUnreportedResult(); }));
  const Dictionary exchange{{kKZCalendarIntegrationExchangeEmail, "bob@example.com"}};
  requests.request(
      Dictionary{{kKZCalendarIntegration, Dictionary{{kKZCalendarIntegrationExchange, exchange}}}});
  ASSERT_TRUE(waitForCalls(2));
  EXPECT_EQ(host.credentials.size(), 1);
  EXPECT_EQ(host.tokens.size(), 1);

  opened.clear();
  signIn();
  ASSERT_TRUE(QTest::qWaitFor([this] { return wrapper->hasUnreportedResult(); }));
  wrapper->cancelSignIn();
  QTest::qWait(50);
  EXPECT_EQ(host.calls(), 2);
}

TEST_F(ADAuthenticationWrapperTest, OnlyTheFirstCompletionIsDeliveredOnTheMainThread) {
  const auto mainThread = std::make_shared<MainThreadInvoker>();
  std::vector<std::thread::id> deliveries;
  const ADAuthenticationCallback deliver = [&](const ADAuthenticationResult&) {
    deliveries.push_back(std::this_thread::get_id());
  };
  const auto newCompletion = [&] {
    return ADAuthenticationWrapper::oneShotCompletion(mainThread, Q_FUNC_INFO, deliver);
  };
  const ADAuthenticationCallback completion = newCompletion();
  std::thread([copy = completion] {
    copy({});
    copy({});
  }).join();
  completion({});
  EXPECT_TRUE(deliveries.empty()) << "never from within the completion";
  QTest::qWait(20);
  EXPECT_EQ(deliveries, std::vector{std::this_thread::get_id()});
  EXPECT_EQ(trace.lines().filter("error fBlockHit is YES").size(), 2);

  newCompletion()({});
  mainThread->close();
  std::thread(newCompletion(), ADAuthenticationResult()).join();
  QTest::qWait(20);
  EXPECT_EQ(deliveries.size(), 1U) << "nothing is delivered to what is closed";
}

TEST_F(ADAuthenticationWrapperTest, TracesNoSecret) {
  signIn();
  ASSERT_TRUE(waitForCalls(1));
  QStringList secrets{textValue(host.credentials.first(), QRT_CredentialContent), storedRefreshToken()};
  wrapper->refreshTokenWithParams(params(storedRefreshToken()),
                                  {{QRT_ListingMeeting_exchOnlineToken, "stale-token"}});
  ASSERT_TRUE(waitForCalls(2));
  secrets += {storedRefreshToken(), "stale-token",
              textValue(host.tokens.first(), QRT_ListingMeeting_exchOnlineToken)};
  wrapper->refreshTokenWithParams(params("refresh-revoked"), {});
  ASSERT_TRUE(waitForCalls(3));
  secrets.append("refresh-revoked");
  for (const QUrlQuery& request : authority->tokenRequests()) {
    for (const char* name : {"code", "code_verifier"}) {
      secrets.append(request.queryItemValue(QLatin1String(name), QUrl::FullyDecoded));
    }
  }
  secrets.removeAll(QString());
  EXPECT_EQ(secrets.size(), 8);
  const QString all = trace.lines().join('\n');
  EXPECT_TRUE(all.contains("sign-in: started for alice@example.com, piiFlag:1")) << all.toStdString();
  for (const QString& secret : secrets) EXPECT_FALSE(all.contains(secret)) << secret.toStdString();
}

}  // namespace
