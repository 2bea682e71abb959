#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <algorithm>

#include "adal/ADAuthenticationContext.h"
#include "adal/ADTokenCache.h"
#include "tests/KZPreference/authentication/TokenHost.h"

namespace {

constexpr int kTokenUsers = 20;
constexpr int kTokenRequests = 200;
constexpr int kTurnRounds = 7;
constexpr std::chrono::milliseconds kProviderDelay{20};  // less than any provider's on the Internet
constexpr double kMostTimes = 1.1;

class TokenTurnsTest : public testing::Test, public TokenHost {
 protected:
  static QString userNumber(int index) { return QStringLiteral("user%1@example.com").arg(index); }

  // Microseconds.
  qint64 refreshesAlone() {
    QElapsedTimer clock;
    clock.start();
    for (int user = 0; user < kTokenUsers; ++user) {
      ADError error;
      bool isDone = false;
      const auto context =
          ADAuthenticationContext::initWithAuthority(provider.authority(), ADAuthorityValidation::Off, error);
      context->acquireTokenWithRefreshToken(provider.grant(userNumber(user)), "https://mail.example.com",
                                            "client-1", QUrl(),
                                            [&](const ADAuthenticationResult&) { isDone = true; });
      while (!isDone) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return clock.nsecsElapsed() / 1000;
  }
  qint64 requestsAtOnce() {
    EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
    for (int user = 0; user < kTokenUsers; ++user) addUser(userNumber(user));
    order.clear();
    takeTrace();
    QElapsedTimer clock;
    clock.start();
    for (int number = 0; number < kTokenRequests; ++number) ask(userNumber(number % kTokenUsers));
    EXPECT_TRUE(waitForAnswers(kTokenRequests));
    return clock.nsecsElapsed() / 1000;
  }
};

double middle(QList<double> values) {
  std::sort(values.begin(), values.end());
  return values.at(values.size() / 2);
}

TEST_F(TokenTurnsTest, CostLittleBesideTheRefreshes) {
  provider.setDelay(kProviderDelay);
  QList<double> ratios, controls, alone;
  for (int round = 0; round < kTurnRounds; ++round) {
    // Together, so that other load on the machine slows all.
    const auto before = static_cast<double>(refreshesAlone());
    const auto atOnce = static_cast<double>(requestsAtOnce());
    const auto after = static_cast<double>(refreshesAlone());
    alone.append(before);
    ratios.append(2 * atOnce / (before + after));
    controls.append(after / before);
  }
  std::printf(
      "tokens: %d requests for %d users take %.2f times the refreshes, which take %.0f us (control %.2f, "
      "medians of %d)\n",
      kTokenRequests, kTokenUsers, middle(ratios), middle(alone), middle(controls), kTurnRounds);
  EXPECT_LT(middle(ratios), kMostTimes);
}

}  // namespace
