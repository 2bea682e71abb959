#include <QElapsedTimer>
#include <algorithm>

#include "companion/exchange/AutodiscoverMessage.h"
#include "companion/network/HttpCall.h"
#include "tests/exchange/DiscoveryFixture.h"

namespace {

constexpr int kRounds = 15;
constexpr qint64 kMostMicroseconds = 50'000;

qint64 median(QList<qint64> values) {
  std::sort(values.begin(), values.end());
  return values.at(values.size() / 2);
}

class DiscoveryTimeTest : public DiscoveryFixture {
 protected:
  // The same requests alone: the time of network and server.
  void askBare() {
    const QString usual("autodiscover.corp.sandbox.example");
    const QByteArray right = "Basic " + QString(username + ":" + password).toUtf8().toBase64();
    askOne("corp.sandbox.example", {});
    askOne(usual, {});
    askOne(usual, right);
  }

  // Qt Test's own waiting sleeps between its checks, and the server runs in this thread.
  static void spinUntil(const std::function<bool()>& isDone) {
    while (!isDone()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  }

  void discover() {
    detect("onprem@corp.sandbox.example");
    spinUntil([this] { return !notified.isEmpty(); });
    notified.clear();
    sinkPassword();
    spinUntil([this] { return !notified.isEmpty(); });
    ASSERT_FALSE(waitForExchange().isEmpty());
  }

 private:
  void askOne(const QString& host, const QByteArray& authorization) {
    bool isDone = false;
    const HttpCall call(configuration.network,
                        {.address = QUrl("https://" + host + "/autodiscover/autodiscover.xml"),
                         .body = autodiscoverRequest("onprem@corp.sandbox.example"),
                         .authorization = authorization},
                        [&isDone](const HttpResponse&) { isDone = true; });
    spinUntil([&isDone] { return isDone; });
  }
};

TEST_F(DiscoveryTimeTest, CostsLittleBesideItsRequests) {
  configuration.stagger = std::chrono::seconds(5);
  // Both halves of a round are measured together, so that other load on the machine slows both.
  QList<qint64> bare, beyond;
  QElapsedTimer clock;
  for (int round = 0; round <= kRounds; ++round) {
    clock.start();
    askBare();
    const qint64 alone = clock.nsecsElapsed() / 1000;
    clock.restart();
    discover();
    if (round == 0) continue;  // it initialises TLS
    bare.append(alone);
    beyond.append(clock.nsecsElapsed() / 1000 - alone);
  }
  std::printf("discovery: %lld us beyond its requests, which take %lld us (medians of %d)\n",
              static_cast<long long>(median(beyond)), static_cast<long long>(median(bare)), kRounds);
  EXPECT_LT(median(beyond), kMostMicroseconds);
}

}  // namespace
