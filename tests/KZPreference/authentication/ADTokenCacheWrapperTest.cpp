#include "KZPreference/authentication/ADTokenCacheWrapper.h"

#include <gtest/gtest.h>

#include <thread>

#include "KZPreference/authentication/ADTokenCacheItem+Mivra.h"
#include "adal/ADAuthenticationSettings.h"
#include "adal/ADTokenCache.h"
#include "adal/ADTokenCacheDelegate.h"
#include "host/KZFoundation/KZConstants.h"
#include "tests/kit/TraceCollector.h"

namespace {

const QDateTime lookUpTime = QDateTime::fromString("2030-01-01T12:00:00Z", Qt::ISODate);

ADTokenCacheItem accessFor(const QString& user, const QString& token, int expiresIn = 3600) {
  ADTokenCacheItem item;
  item.userInformation.userId = user;
  item.authority = "https://login.example.com/common";
  item.resource = "https://mail.example.com";
  item.clientId = "client-1";
  item.accessToken = token;
  item.expiresOn = lookUpTime.addSecs(expiresIn);
  return item;
}

ADTokenCacheItem refreshFor(const QString& user, const QString& token) {
  ADTokenCacheItem item;
  item.userInformation.userId = user;
  item.authority = "https://login.example.com/elsewhere";
  item.clientId = "client-2";
  item.refreshToken = token;
  item.multiResource = true;
  return item;
}

class ADTokenCacheWrapperTest : public testing::Test {
 protected:
  ADTokenCacheWrapperTest() {
    setADClock([] { return lookUpTime; });
    ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(nullptr);
  }
  ~ADTokenCacheWrapperTest() override {
    setADClock(nullptr);
    store({});
  }

  static void store(const QList<ADTokenCacheItem>& items) {
    ASSERT_FALSE(ADTokenCache::defaultCache().replaceAllItems(items));
  }
  static Dictionary lookUp(const QString& email, const QString& username = QString()) {
    return ADTokenCacheWrapper::sharedInstance().getAccessTokenByEmail(email, username);
  }
  static QString tokenOf(const Dictionary& information) {
    return textValue(information, QRT_ListingMeeting_exchOnlineToken);
  }

  TraceCollector trace;
};

TEST_F(ADTokenCacheWrapperTest, TokensCountAsExpiredInTheirLastTenMinutes) {
  const std::pair<int, bool> cases[] = {{601, false}, {600, false}, {599, true}, {0, true}, {-1, true}};
  for (const auto& [expiresIn, isExpired] : cases) {
    EXPECT_EQ(isExpiredWithPrejudge(accessFor("a@example.com", "token", expiresIn)), isExpired) << expiresIn;
  }
  ADTokenCacheItem endless = accessFor("a@example.com", "token");
  endless.expiresOn = QDateTime();
  EXPECT_TRUE(isExpiredWithPrejudge(endless));
}

TEST_F(ADTokenCacheWrapperTest, AnswersWithRefreshInformationOnlyWhenExpired) {
  const QString user("Alice@Example.com");
  store({accessFor(user, "access", 599), refreshFor(user, "refresh")});
  EXPECT_EQ(lookUp("alice@example.COM"),
            (Dictionary{{QRT_ListingMeeting_exchOnlineToken, "access"},
                        {"isTokenExpired", true},
                        {"refreshTokenInfo", Dictionary{{"authority", "https://login.example.com/common"},
                                                        {"resource", "https://mail.example.com"},
                                                        {"clientId", "client-1"},
                                                        {"redirectUri", "urn:ietf:wg:oauth:2.0:oob"},
                                                        {"email", user},
                                                        {"refreshToken", "refresh"}}}}));
  store({accessFor(user, "access"), refreshFor(user, "refresh")});
  EXPECT_EQ(lookUp("other@example.com", "ALICE@example.com"),
            (Dictionary{{QRT_ListingMeeting_exchOnlineToken, "access"}, {"isTokenExpired", false}}));
}

TEST_F(ADTokenCacheWrapperTest, NeedsBothItemsOfThatUser) {
  const QString user("a@example.com");
  const QList<ADTokenCacheItem> cases[] = {
      {},
      {accessFor(user, "access")},
      {refreshFor(user, "refresh")},
      {accessFor(user, "access"), refreshFor("b@example.com", "refresh")},
      {accessFor("", "access"), refreshFor("", "refresh")},
  };
  for (const QList<ADTokenCacheItem>& items : cases) {
    store(items);
    EXPECT_EQ(lookUp(user), Dictionary());
    EXPECT_EQ(lookUp(QString(), QString()), Dictionary()) << "an empty user name matches no item";
  }
}

TEST_F(ADTokenCacheWrapperTest, LaterItemsReplaceEarlierOnesUntilBothAreThere) {
  const QString user("a@example.com");
  store({accessFor(user, "one"), accessFor(user, "two"), refreshFor(user, "refresh"),
         accessFor(user, "three")});
  EXPECT_EQ(tokenOf(lookUp(user)), "two");
  store({refreshFor(user, "r1"), refreshFor(user, "r2"), accessFor(user, "one", 0), refreshFor(user, "r3")});
  EXPECT_EQ(textValue(dictionaryValue(lookUp(user), "refreshTokenInfo"), "refreshToken"), "r2");
}

class NestedLookUp final : public ADTokenCacheDelegate {
 public:
  void willAccessCache(ADTokenCache&) override {}
  void didAccessCache(ADTokenCache&) override {}
  void willWriteCache(ADTokenCache&) override {}
  void didWriteCache(ADTokenCache&) override {
    answer = ADTokenCacheWrapper::sharedInstance().getAccessTokenByEmail("a@example.com", QString());
  }

  Dictionary answer{{"not", "asked"}};
};

TEST_F(ADTokenCacheWrapperTest, ABusyCacheIsAnErrorTraceAndNoToken) {
  NestedLookUp delegate;
  ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(&delegate);
  store({accessFor("a@example.com", "access"), refreshFor("a@example.com", "refresh")});
  ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(nullptr);
  EXPECT_EQ(delegate.answer, Dictionary());
  EXPECT_EQ(trace.lines().filter("error error:cache busy").size(), 1)
      << trace.lines().join('\n').toStdString();
}

// Waits for a look-up on another thread while the cache is being used, as a trace sink may.
class WaitingForLookUp final : public ADTokenCacheDelegate {
 public:
  void willAccessCache(ADTokenCache&) override { lookUp(); }
  void didAccessCache(ADTokenCache&) override {}
  void willWriteCache(ADTokenCache&) override { lookUp(); }
  void didWriteCache(ADTokenCache&) override {}

  int answers = 0;

 private:
  void lookUp() {
    std::thread([] {
      EXPECT_EQ(ADTokenCacheWrapper::sharedInstance().getAccessTokenByEmail("a@example.com", QString()),
                Dictionary());
    }).join();
    ++answers;
  }
};

TEST_F(ADTokenCacheWrapperTest, ALookUpThatIsWaitedForEnds) {
  WaitingForLookUp delegate;
  ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(&delegate);
  store({accessFor("a@example.com", "access"), refreshFor("a@example.com", "refresh")});
  EXPECT_EQ(tokenOf(lookUp("a@example.com")), "access");
  ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(nullptr);
  EXPECT_EQ(delegate.answers, 2);
  EXPECT_EQ(trace.lines().filter("error error:cache busy").size(), 2);
}

TEST_F(ADTokenCacheWrapperTest, AMissingTextEndsTheRefreshInformation) {
  ADTokenCacheItem access = accessFor("a@example.com", "access", 0);
  access.resource = QString();
  store({access, refreshFor("a@example.com", "refresh")});
  EXPECT_EQ(dictionaryValue(lookUp("a@example.com"), "refreshTokenInfo"),
            (Dictionary{{"authority", "https://login.example.com/common"}}));
}

}  // namespace
