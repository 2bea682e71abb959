#include "host/KZUtility/KZKeychainQueue.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

namespace {

using namespace std::chrono_literals;
using Status = KZKeychainBackend::Status;
using Unlocking = KZKeychainQueue::Unlocking;

// Long enough for a loaded machine; a keyring that is silent is silent at once here.
constexpr KZKeychainQueue::Pace kPace = {
    .deadline = 5s, .firstPause = 20ms, .longestPause = 80ms, .lastChance = 5s};
constexpr KZKeychainQueue::Pace kPausing = {
    .deadline = 5s, .firstPause = 1h, .longestPause = 1h, .lastChance = 5s};
constexpr KZKeychainQueue::Pace kHasty = {
    .deadline = 50ms, .firstPause = 20ms, .longestPause = 80ms, .lastChance = 100ms};

KZKeychainBackend::Item item(const QString& account) {
  return {QStringLiteral("test"), account};
}

// A keyring in memory that says what the test wants.
class ScriptedKeyring final : public KZKeychainBackend {
 public:
  Answer read(const Item& item) override {
    const Status said = begin("read " + item.account, item);
    if (said != Status::Done) return {said, {}};
    const std::lock_guard lock(mutex);
    const auto found = secrets.find(item.account);
    return found == secrets.end() ? Answer{Status::NotFound, {}} : Answer{Status::Done, found->second};
  }
  Status write(const Item& item, const QByteArray& secret) override {
    const Status said = begin("write " + item.account + ' ' + secret, item);
    const std::lock_guard lock(mutex);
    if (said == Status::Done && !isForgetful) secrets[item.account] = secret;
    return said;
  }
  Status remove(const Item& item) override {
    const Status said = begin("remove " + item.account, item);
    const std::lock_guard lock(mutex);
    if (said != Status::Done && !isDoneButSilent) return said;
    const bool isFound = secrets.erase(item.account) > 0;
    if (said != Status::Done) return said;
    return isFound ? Status::Done : Status::NotFound;
  }
  void unlock(const QList<Item>& items) override {
    const std::lock_guard lock(mutex);
    for (const Item& each : items) calls.append("unlock " + each.account);
    if (isUserWilling) locked.clear();
  }

  void say(Status next) {
    const std::lock_guard lock(mutex);
    status = next;
    changed.notify_all();
  }
  QStringList takeCalls() {
    const std::lock_guard lock(mutex);
    return std::exchange(calls, {});
  }
  bool has(const QString& account, const QByteArray& secret) {
    const std::lock_guard lock(mutex);
    const auto found = secrets.find(account);
    return found != secrets.end() && found->second == secret;
  }
  // Calls begin and do not return before `open`.
  void close() {
    const std::lock_guard lock(mutex);
    isClosed = true;
  }
  void open() {
    const std::lock_guard lock(mutex);
    isClosed = false;
    changed.notify_all();
  }

  QStringList locked;  // accounts
  std::map<QString, QByteArray> secrets;
  bool isUserWilling = false;
  bool isForgetful = false;
  bool isDoneButSilent = false;

 private:
  Status begin(const QString& call, const Item& item) {
    std::unique_lock lock(mutex);
    calls.append(call);
    changed.notify_all();
    changed.wait(lock, [this] { return !isClosed; });
    return status == Status::Done && locked.contains(item.account) ? Status::Locked : status;
  }

  std::mutex mutex;
  std::condition_variable changed;
  QStringList calls;
  Status status = Status::Done;
  bool isClosed = false;
};

class KZKeychainQueueTest : public testing::Test {
 protected:
  std::unique_ptr<KZKeychainQueue> queueWith(const KZKeychainQueue::Pace& pace = kPace,
                                             Unlocking unlocking = Unlocking::Never) {
    const auto note = [this](const char* what) {
      return [this, what](const QString& account) {
        const std::lock_guard lock(mutex);
        told.append(what + account);
      };
    };
    return std::make_unique<KZKeychainQueue>(
        keyring, unlocking, KZKeychainQueue::Listener{note("written "), note("removed "), [] {}}, pace);
  }
  QStringList takeTold() {
    const std::lock_guard lock(mutex);
    return std::exchange(told, {});
  }
  bool calls(const QString& call) {
    return QTest::qWaitFor([&] { return (seen += keyring->takeCalls()).contains(call); });
  }

  std::shared_ptr<ScriptedKeyring> keyring = std::make_shared<ScriptedKeyring>();
  QStringList seen;

 private:
  std::mutex mutex;
  QStringList told;
};

TEST_F(KZKeychainQueueTest, CarriesTheNewestChangeOfEachItemInOrder) {
  const auto queue = queueWith();
  keyring->close();
  queue->write(item("a"), "1");
  ASSERT_TRUE(calls("write a 1"));
  queue->write(item("b"), "1");
  queue->write(item("c"), "1");
  queue->write(item("d"), "1");
  queue->write(item("b"), "2");
  std::thread remover([&] { EXPECT_EQ(queue->remove(item("c")), Status::NotFound); });
  // Its own truth at once, whatever the keyring does.
  EXPECT_TRUE(QTest::qWaitFor([&] { return queue->read(item("c")).status == Status::NotFound; }));
  EXPECT_EQ(queue->read(item("b")).secret, "2");
  EXPECT_EQ(takeTold(), QStringList());
  keyring->open();
  remover.join();
  EXPECT_EQ(keyring->takeCalls(), (QStringList{"write d 1", "write b 2", "remove c"}));
  EXPECT_EQ(takeTold(), (QStringList{"written a", "written d", "written b"}));
}

TEST_F(KZKeychainQueueTest, ALateAnswerChangesNothingThatIsNewer) {
  keyring->secrets = {{"a", "old"}};
  const auto queue = queueWith();
  keyring->close();
  queue->prefetch({item("a")});
  ASSERT_TRUE(calls("read a"));
  queue->write(item("a"), "1");
  keyring->open();
  ASSERT_TRUE(calls("write a 1"));
  queue->settle();
  keyring->close();
  queue->write(item("a"), "2");
  ASSERT_TRUE(calls("write a 2"));
  queue->write(item("a"), "3");
  keyring->open();
  queue->settle();
  EXPECT_TRUE(keyring->has("a", "3"));
  EXPECT_EQ(queue->read(item("a")).secret, "3");
}

TEST_F(KZKeychainQueueTest, TriesUntilTheKeyringConfirms) {
  for (const Status fault : {Status::Locked, Status::NoKeyring, Status::Silent}) {
    SCOPED_TRACE(static_cast<int>(fault));
    keyring->secrets = {{"removed", "old"}, {"read", "late"}, {"replaced", "old"}};
    const auto queue = queueWith();
    keyring->say(fault);
    EXPECT_EQ(queue->read(item("read")).status, fault);
    EXPECT_EQ(queue->read(item("replaced")).status, fault);
    queue->write(item("replaced"), "new");
    EXPECT_EQ(queue->remove(item("removed")), fault);
    queue->settle();
    EXPECT_EQ(queue->hindrance(), fault);
    EXPECT_EQ(queue->read(item("replaced")).secret, "new");
    EXPECT_EQ(queue->read(item("removed")).status, Status::NotFound);
    EXPECT_EQ(takeTold(), QStringList());
    QTest::qWait(50);  // several pauses
    keyring->say(Status::Done);
    EXPECT_TRUE(QTest::qWaitFor([&] { return queue->hindrance() == Status::Done; }));
    EXPECT_EQ(queue->read(item("read")).secret, "late");
    EXPECT_EQ(queue->read(item("replaced")).secret, "new");
    EXPECT_TRUE(keyring->has("replaced", "new"));
    EXPECT_EQ(takeTold(), (QStringList{"written replaced", "removed removed"}));
    EXPECT_EQ(queue->remove(item("removed")), Status::NotFound);
  }
}

TEST_F(KZKeychainQueueTest, ANewChangeAndTheEndAreTriedWithoutAPause) {
  const auto queue = queueWith(kPausing);
  const auto fail = [&](const char* secret) {
    keyring->say(Status::NoKeyring);
    queue->write(item("a"), secret);
    queue->settle();
    EXPECT_EQ(queue->hindrance(), Status::NoKeyring);
    keyring->say(Status::Done);
  };
  fail("1");
  queue->write(item("b"), "1");
  EXPECT_TRUE(QTest::qWaitFor([&] { return keyring->has("a", "1") && keyring->has("b", "1"); }));
  fail("2");
  EXPECT_EQ(queue->finish(), QStringList());
  EXPECT_TRUE(keyring->has("a", "2"));
}

TEST_F(KZKeychainQueueTest, ASilentKeyringIsWaitedForOnce) {
  const auto queue = queueWith(kHasty);
  keyring->close();
  queue->prefetch({item("a"), item("b")});
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ(queue->read(item("a")).status, Status::Silent);
  EXPECT_GE(timer.elapsed(), kHasty.deadline.count() - 1);
  EXPECT_EQ(queue->hindrance(), Status::Silent);
  timer.restart();
  for (int i = 0; i < 100; ++i) {
    EXPECT_EQ(queue->read(item("b")).status, Status::Silent);
    EXPECT_EQ(queue->remove(item("c")), Status::Silent);
    queue->settle();
  }
  EXPECT_LT(timer.elapsed(), 100 * kHasty.deadline.count());
  keyring->open();
  EXPECT_TRUE(QTest::qWaitFor([&] { return queue->hindrance() == Status::Done; }));
  EXPECT_EQ(queue->read(item("b")).status, Status::NotFound);
}

TEST_F(KZKeychainQueueTest, ALateRemovalIsToldOnce) {
  keyring->secrets = {{"a", "old"}};
  keyring->isDoneButSilent = true;
  const auto queue = queueWith();
  keyring->say(Status::Silent);
  EXPECT_EQ(queue->remove(item("a")), Status::Silent);
  keyring->say(Status::Done);
  EXPECT_TRUE(QTest::qWaitFor([&] { return queue->hindrance() == Status::Done; }));
  EXPECT_EQ(takeTold(), QStringList{"removed a"});
}

TEST_F(KZKeychainQueueTest, ALockedItemHoldsUpNoOther) {
  for (const bool isWilling : {false, true}) {
    SCOPED_TRACE(isWilling);
    keyring->secrets = {{"a", "1"}, {"b", "1"}};
    keyring->locked = {"a", "b"};
    keyring->isUserWilling = isWilling;
    keyring->takeCalls();
    const auto queue = queueWith(kPausing, Unlocking::AskOnce);
    queue->prefetch({item("a"), item("b")});
    queue->write(item("c"), "1");
    queue->settle();
    EXPECT_TRUE(keyring->has("c", "1"));
    seen.clear();
    EXPECT_TRUE(calls("unlock b"));
    EXPECT_EQ(QTest::qWaitFor([&] { return queue->read(item("a")).secret == "1"; }, isWilling ? 5000 : 200),
              isWilling);
    EXPECT_EQ(queue->hindrance(), isWilling ? Status::Done : Status::Locked);
    EXPECT_EQ((seen + keyring->takeCalls()).filter("unlock").size(), 2) << "asked once, for both";
  }
}

TEST_F(KZKeychainQueueTest, AForgetfulKeyringLosesNothingInTheRun) {
  keyring->isForgetful = true;
  const auto queue = queueWith();
  queue->write(item("a"), "1");
  queue->settle();
  EXPECT_EQ(takeTold(), QStringList{"written a"});
  EXPECT_EQ(queue->read(item("a")).secret, "1");
  EXPECT_EQ(queue->remove(item("a")), Status::NotFound);
}

TEST_F(KZKeychainQueueTest, TheEndIsBoundedAndNamesWhatIsLost) {
  auto queue = queueWith(kHasty);
  queue->write(item("kept"), "1");
  EXPECT_EQ(queue->finish(), QStringList());
  EXPECT_TRUE(keyring->has("kept", "1"));
  keyring->close();
  queue->write(item("lost"), "1");
  queue->prefetch({item("read")});
  EXPECT_EQ(queue->remove(item("kept")), Status::Silent);
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ(queue->finish(), (QStringList{"lost", "kept"}));
  EXPECT_EQ(queue->finish(), QStringList()) << "told once";
  queue.reset();
  EXPECT_LT(timer.elapsed(), 2000) << "nobody waits for a call that hangs";
  takeTold();
  keyring->open();
  QTest::qWait(50);
  EXPECT_EQ(takeTold(), QStringList()) << "nobody is there to be told";
}

TEST_F(KZKeychainQueueTest, WithoutAKeyringMemoryConfirmsAtOnce) {
  keyring.reset();
  const auto queue = queueWith();
  EXPECT_EQ(queue->read(item("a")).status, Status::NotFound);
  EXPECT_EQ(queue->remove(item("a")), Status::NotFound);
  queue->write(item("a"), "1");
  EXPECT_EQ(queue->read(item("a")).secret, "1");
  EXPECT_EQ(queue->remove(item("a")), Status::Done);
  EXPECT_EQ(takeTold(), (QStringList{"written a", "removed a"}));
  EXPECT_EQ(queue->finish(), QStringList());
}

TEST_F(KZKeychainQueueTest, AHitCostsNoCopy) {
  const auto queue = queueWith();
  const QByteArray large(8 << 20, 'x');
  queue->write(item("a"), large);
  EXPECT_EQ(queue->read(item("a")).secret.constData(), large.constData());
}

}  // namespace
