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
  // The same requests without anything of ours between them: what network and server take.
  void askBare() {
    QNetworkAccessManager network;
    const QString usual("autodiscover.corp.sandbox.example");
    const QByteArray right = "Basic " + QString(username + ":" + password).toUtf8().toBase64();
    askOne(network, "corp.sandbox.example", {});
    askOne(network, usual, {});
    askOne(network, usual, right);
  }

  // Qt Test's own waiting sleeps between looks, and the server runs in this thread.
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
  void askOne(QNetworkAccessManager& network, const QString& host, const QByteArray& authorization) {
    bool isDone = false;
    HttpCall call(network, configuration.network);
    call.start({.address = QUrl("https://" + host + "/autodiscover/autodiscover.xml"),
                .body = autodiscoverRequest("onprem@corp.sandbox.example"),
                .authorization = authorization},
               [&isDone](const HttpAnswer&) { isDone = true; });
    spinUntil([&isDone] { return isDone; });
  }
};

TEST_F(DiscoveryTimeTest, CostsLittleBesideItsRequests) {
  configuration.limits.stagger = std::chrono::seconds(5);
  QList<qint64> bare, ours;
  QElapsedTimer clock;
  for (int round = 0; round <= kRounds; ++round) {
    clock.start();
    askBare();
    bare.append(clock.nsecsElapsed() / 1000);
    clock.restart();
    discover();
    ours.append(clock.nsecsElapsed() / 1000);
  }
  std::printf("discovery: %lld us, its requests alone: %lld us (medians of %d)\n",
              static_cast<long long>(median(ours)), static_cast<long long>(median(bare)), kRounds);
  EXPECT_LT(median(ours) - median(bare), kMostMicroseconds);
}

}  // namespace
