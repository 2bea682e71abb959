#include "host/KZFoundation/KZNotificationCenter.h"

#include <gtest/gtest.h>

#include <thread>

TEST(KZNotificationCenter, CallsEachObserverOfTheNameInOrderOnThePostingThread) {
  KZNotificationCenter center;
  QStringList received;
  std::thread::id thread;
  const auto first = center.addObserver("a", [&](const KZNotification& notification) {
    received.append("1" + notification.userInfo.value("k").toString());
    thread = std::this_thread::get_id();
  });
  const auto second = center.addObserver("a", [&](const KZNotification&) { received.append("2"); });
  const auto other = center.addObserver("b", [&](const KZNotification&) { received.append("b"); });
  std::thread worker([&] { center.post({.name = "a", .userInfo = {{"k", "v"}}}); });
  const std::thread::id expected = worker.get_id();
  worker.join();
  EXPECT_EQ(received, (QStringList{"1v", "2"}));
  EXPECT_EQ(thread, expected);
}

TEST(KZNotificationCenter, EndsARegistrationWithItsLastToken) {
  KZNotificationCenter center;
  int received = 0;
  auto token = center.addObserver("a", [&](const KZNotification&) { ++received; });
  auto copy = token;
  token.reset();
  center.post({.name = "a", .userInfo = {}});
  copy.reset();
  center.post({.name = "a", .userInfo = {}});
  EXPECT_EQ(received, 1);
}

TEST(KZNotificationCenter, LetsAHandlerPostObserveAndEndItself) {
  KZNotificationCenter center;
  QStringList received;
  KZNotificationCenter::Token added;
  KZNotificationCenter::Token self;
  self = center.addObserver("a", [&](const KZNotification&) {
    received.append("self");
    self.reset();
    added = center.addObserver("a", [&](const KZNotification&) { received.append("added"); });
    center.post({.name = "b", .userInfo = {}});
  });
  const auto other = center.addObserver("b", [&](const KZNotification&) { received.append("b"); });
  center.post({.name = "a", .userInfo = {}});
  EXPECT_EQ(received, (QStringList{"self", "b"}));
  center.post({.name = "a", .userInfo = {}});
  EXPECT_EQ(received, (QStringList{"self", "b", "added"}));
}
