#include <gtest/gtest.h>

#include <QEventLoop>
#include <QTest>
#include <QTimer>
#include <algorithm>

#include "KZPreference/core/KZPreferenceCore.h"
#include "adal/ADTokenCache.h"
#include "host/KZFoundation/KZConstants.h"
#include "tests/KZPreference/authentication/TokenHost.h"
#include "tests/kit/Input.h"

namespace {

using namespace std::chrono_literals;

QString userNumber(int index) {
  return QStringLiteral("user%1@example.com").arg(index);
}

// "refreshed", "stored", "nothing", the reason of a failure, or what should not be.
QString outcome(const std::optional<Dictionary>& answer) {
  if (!answer) return QStringLiteral("unanswered");
  const QString user = textValue(
      dictionaryValue(dictionaryValue(*answer, kKZCalendarIntegration), kKZCalendarIntegrationExchange),
      kKZCalendarIntegrationExchangeEmail);
  if (isSet(*answer, "GetTokenFailed")) {
    EXPECT_FALSE(answer->contains(QRT_ListingMeeting_exchOnlineToken));
    return textValue(*answer, "GetTokenFailedReason");
  }
  const QString token = textValue(*answer, QRT_ListingMeeting_exchOnlineToken);
  if (token.isNull()) return QStringLiteral("nothing");
  EXPECT_EQ(flagValue(*answer, "isTokenExpired"), false);
  EXPECT_FALSE(answer->contains("refreshTokenInfo"));
  return token.startsWith("access-of-" + user + "-") ? QStringLiteral("refreshed")
         : token == "stored-of-" + user              ? QStringLiteral("stored")
                                                     : QStringLiteral("of somebody else: ") + token;
}

class TokenRequestsTest : public testing::Test, public TokenHost {
 protected:
  QStringList outcomes(const QList<int>& requests) const {
    QStringList all;
    for (const int request : requests) all.append(outcome(answerTo(request)));
    return all;
  }
  QList<int> ask(const QStringList& users) {
    QList<int> requests;
    for (const QString& user : users) requests.append(TokenHost::ask(user));
    return requests;
  }
};

TEST_F(TokenRequestsTest, EachGetsOneAnswerOfItsOwnAndEachUserOneRefresh) {
  for (int user = 0; user < 20; ++user) addUser(userNumber(user));
  QList<int> requests;
  for (int number = 0; number < 200; ++number) requests.append(TokenHost::ask(userNumber(number * 7 % 20)));
  ASSERT_TRUE(waitForAnswers(200));
  QTest::qWait(50);
  EXPECT_EQ(order.size(), 200);
  EXPECT_EQ(QSet(order.begin(), order.end()).size(), 200);
  EXPECT_EQ(outcomes(requests), QStringList(200, "refreshed"));
  for (int user = 0; user < 20; ++user) EXPECT_EQ(provider.redemptions(userNumber(user)), 1) << user;
  EXPECT_EQ(provider.reuses(), 0);
}

TEST_F(TokenRequestsTest, WhoeverNeedsNoRefreshWaitsForNobody) {
  addUser("a");
  addUser("b");
  addUser("valid", Token::Valid);
  provider.setDelay(50ms);
  const QList<int> requests = ask({"a", "valid", "unknown", "A", "b", "a", "valid"});
  EXPECT_EQ(order, (QList{2, 3, 7}));
  EXPECT_EQ(outcomes({2, 3, 7}), (QStringList{"stored", "nothing", "stored"}));
  ASSERT_TRUE(waitForAnswers(4));
  EXPECT_EQ(TokenHost::ask("a"), 8);
  EXPECT_EQ(outcome(answerTo(8)), "refreshed") << "at once, while the next refresh is out";
  ASSERT_TRUE(waitForAnswers(8));
  EXPECT_EQ(order, (QList{2, 3, 7, 1, 8, 4, 6, 5}));
  EXPECT_EQ(provider.requests().size(), 2);
}

TEST_F(TokenRequestsTest, AFailureIsSharedByThoseWhoWaitForIt) {
  const struct {
    const char* name;
    std::function<void()> prepare;
    const char* authority;  // nullptr: the provider's
    int exchanges;
    const char* reason;
  } cases[] = {
      {"revoked", [this] { provider.refuseNext(1, 400, "invalid_grant"); }, nullptr, 1, "SignInAgain"},
      {"busy", [this] { provider.refuseNext(1, 503, "temporarily_unavailable"); }, nullptr, 1, "TryLater"},
      {"stopped", [this] { provider.stop(); }, nullptr, 0, "TryLater"},
      {"not allowed", [] {}, "http://login.example.com", 0, "SignInAgain"},
  };
  for (const auto& tried : cases) {
    SCOPED_TRACE(tried.name);
    provider.stop();
    provider.start();
    const auto before = provider.requests().size();
    addUser("a", tried.authority ? QString(tried.authority) : provider.authority(), provider.grant("a"));
    tried.prepare();
    order.clear();
    const QList<int> requests = ask({"a", "a", "a"});
    ASSERT_TRUE(waitForAnswers(3));
    EXPECT_EQ(outcomes(requests), QStringList(3, tried.reason));
    EXPECT_EQ(order, requests);
    EXPECT_EQ(provider.requests().size() - before, tried.exchanges);
    EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
  }
}

TEST_F(TokenRequestsTest, OneWhoFailsOrCannotStartHoldsNobodyUp) {
  addUser("revoked", provider.authority(), "refresh-of-nobody");
  addUser("unreadable", "http://a b", "refresh");
  addUser("a");
  addUser("b");
  ask({"unreadable"});
  const QList<int> requests = ask({"revoked", "unreadable", "a", "unreadable", "b", "unreadable", "revoked"});
  ASSERT_TRUE(waitForAnswers(4));
  QTest::qWait(50);
  EXPECT_EQ(outcomes(requests), (QStringList{"SignInAgain", "unanswered", "refreshed", "unanswered",
                                             "refreshed", "unanswered", "SignInAgain"}));
}

// A token that is refreshed, but counts as expired at once, is good for those who waited for it.
TEST_F(TokenRequestsTest, AClockThatJumpsAndAShortLifeCostNoFurtherRefresh) {
  for (const bool isJump : {true, false}) {
    addUser("a");
    if (!isJump) provider.setLifetime(60);
    provider.setDelay(30ms);
    order.clear();
    const auto before = provider.requests().size();
    const QList<int> requests = ask({"a", "a", "a"});
    if (isJump) setADClock([] { return QDateTime::currentDateTimeUtc().addDays(1); });
    EXPECT_TRUE(waitForAnswers(3));
    EXPECT_EQ(outcomes(requests), QStringList(3, "refreshed"));
    EXPECT_EQ(provider.requests().size() - before, 1);
    setADClock(nullptr);
    EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
  }
}

TEST_F(TokenRequestsTest, ARestartOfTheProviderFailsOnlyWhatWasOut) {
  for (const char* user : {"a", "b", "c"}) addUser(user);
  provider.setNextDelays({500ms});
  const QList<int> requests = ask({"a", "a", "b", "c"});
  ASSERT_TRUE(kit::waitUntil([this] { return provider.requests().size() == 1; }));
  onAnswer = [this](const Dictionary&) {
    if (order.size() == 1) provider.start();
  };
  provider.stop();
  ASSERT_TRUE(waitForAnswers(4));
  EXPECT_EQ(outcomes(requests), (QStringList{"TryLater", "TryLater", "refreshed", "refreshed"}));
}

TEST_F(TokenRequestsTest, ATurnUsesWhatIsStoredByThen) {
  for (const bool isEnded : {false, true}) {
    m_core = &KZPreferenceCore::sharedInstance();
    m_core->setDelegate(this);
    addUser("a");
    addUser("b");
    order.clear();
    onAnswer = [&](const Dictionary&) {
      if (isEnded && order.size() == 2) KZPreferenceCore::shutDown();
    };
    const QList<int> requests = ask({"a", "b", "b"});
    addUser("b", Token::Valid);
    ASSERT_TRUE(waitForAnswers(isEnded ? 2 : 3));
    QTest::qWait(30);
    EXPECT_EQ(outcomes(requests), (QStringList{"refreshed", "stored", isEnded ? "unanswered" : "stored"}));
    EXPECT_EQ(provider.redemptions("b"), 0);
  }
}

TEST_F(TokenRequestsTest, ASignInSeparatesWhoWaitedForOneToken) {
  addUser("out");
  addUser("a");
  ask({"out"});
  TokenHost::ask("a", "b");
  ask({"a"});
  addUser("b");
  QList<ADTokenCacheItem> items = ADTokenCache::defaultCache().allItems().items;
  std::rotate(items.begin(), items.end() - 2, items.end());
  EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems(items));
  ASSERT_TRUE(waitForAnswers(3));
  EXPECT_TRUE(textValue(answerTo(2).value(), QRT_ListingMeeting_exchOnlineToken).startsWith("access-of-b-"));
  EXPECT_EQ(outcome(answerTo(3)), "refreshed");
}

TEST_F(TokenRequestsTest, AHostMayDoAnythingFromWithinAnAnswer) {
  const struct {
    const char* name;
    std::function<void()> act;
    int answers;
  } cases[] = {
      {"ask for the same user", [this] { TokenHost::ask("a"); }, 6},
      {"ask for the next user", [this] { TokenHost::ask("b"); }, 6},
      {"ask for another user", [this] { TokenHost::ask("later"); }, 6},
      {"show and destroy the window",
       [this] {
         command(2);
         command(3);
       },
       5},
      {"show a dialog until all are answered",
       [this] {
         QEventLoop dialog;
         QTimer timer;
         QObject::connect(&timer, &QTimer::timeout, &dialog, [this, &dialog] {
           if (order.size() == 5) dialog.quit();
         });
         timer.start(5);
         QTimer::singleShot(5000, &dialog, &QEventLoop::quit);
         dialog.exec();
         EXPECT_EQ(order.size(), 5);
       },
       5},
      {"shut down", [] { KZPreferenceCore::shutDown(); }, 0},
  };
  for (const auto& tried : cases) {
    // Inside the wrapper's own answer, inside one that follows it, and inside a direct one.
    for (const int at : {1, 2, 4}) {
      SCOPED_TRACE(testing::Message() << tried.name << " at " << at);
      m_core = &KZPreferenceCore::sharedInstance();
      m_core->setDelegate(this);
      for (const char* user : {"a", "b", "later"}) addUser(user);
      order.clear();
      onAnswer = [this, &tried, at](const Dictionary&) {
        if (order.size() == at) tried.act();
      };
      ask({"a", "a", "b", "b", "a"});
      const int wanted = tried.answers == 0 ? at : tried.answers;
      EXPECT_TRUE(waitForAnswers(wanted));
      QTest::qWait(30);
      EXPECT_EQ(order.size(), wanted);
      EXPECT_EQ(QSet(order.begin(), order.end()).size(), wanted) << "each once";
      onAnswer = {};
      EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
    }
  }
}

}  // namespace
