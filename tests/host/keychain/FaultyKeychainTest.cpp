#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <functional>

#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/SecretServiceKeychain.h"
#include "tests/host/keychain/ServiceProcess.h"
#include "tests/kit/TraceCollector.h"

namespace {

constexpr std::chrono::milliseconds kDeadline(400);
constexpr qint64 kMargin = 300;

const KZKeychainBackend::Item kAnyItem{QStringLiteral("test"), QStringLiteral("any")};

// All that a host does with its secrets, while the keychain does not work.
void expectMemoryAfterOneWarning() {
  const TraceCollector watch;
  KZKeyChainHandle& handle = KZKeyChainHandle::sharedInstance();
  handle.useBackend(std::make_shared<SecretServiceKeychain>(kDeadline));
  EXPECT_FALSE(handle.hasFailed());
  QSignalSpy lost(&handle, &KZKeyChainHandle::failed);
  QElapsedTimer timer;
  timer.start();
  handle.commitOutlookUsername("anna", "s3cr3t");
  handle.commitOutlookOnlineData("blob");
  QString username;
  QString password;
  handle.getOutlookUsername(&username, &password);
  // Only the first call waits.
  EXPECT_LT(timer.elapsed(), kDeadline.count() + kMargin);
  EXPECT_EQ(username, "anna");
  EXPECT_EQ(password, "s3cr3t");
  EXPECT_EQ(handle.getOutlookOnlineData(), QByteArray("blob"));
  handle.removeOutlookCredential();
  handle.getOutlookUsername(&username, &password);
  EXPECT_TRUE(username.isNull());
  EXPECT_EQ(watch.count(KZTraceLevel::Warning), 1);
  EXPECT_EQ(watch.records().size(), 1U);
  EXPECT_FALSE(watch.lastText().contains("s3cr3t"));
  EXPECT_TRUE(handle.hasFailed());
  EXPECT_EQ(lost.size(), 1);
  timer.restart();
  handle.useStorage(KZKeyChainHandle::Storage::Memory);
  EXPECT_FALSE(handle.getOutlookOnlineData().has_value());
  EXPECT_LT(timer.elapsed(), kDeadline.count() + kMargin);
}

// Each kind of call fails within the deadline.
void expectUnavailable() {
  using Status = KZKeychainBackend::Status;
  SecretServiceKeychain keychain(kDeadline);
  const std::function<Status()> calls[] = {[&] { return keychain.read(kAnyItem).status; },
                                           [&] { return keychain.write(kAnyItem, "x"); },
                                           [&] { return keychain.remove(kAnyItem); }};
  for (const auto& call : calls) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(call(), Status::Unavailable);
    EXPECT_LT(timer.elapsed(), kDeadline.count() + kMargin);
  }
}

}  // namespace

TEST(FaultyKeychain, DelaysByTheDeadlineAtMostAndNeverPrompts) {
  for (const char* fault : {"silent", "locked", "absent", "slow", "dies"}) {
    SCOPED_TRACE(fault);
    {
      ServiceProcess service(fault);
      expectMemoryAfterOneWarning();
      EXPECT_FALSE(service.said().contains("prompt"));
    }
    ServiceProcess service(fault);
    expectUnavailable();
    EXPECT_FALSE(service.said().contains("prompt"));
  }
}

TEST(FaultyKeychain, KeepsWhatItHadReadWhenTheServiceDies) {
  const TraceCollector watch;
  KZKeyChainHandle& handle = KZKeyChainHandle::sharedInstance();
  {
    const ServiceProcess keyring;
    handle.useBackend(std::make_shared<SecretServiceKeychain>(std::chrono::seconds(20)));
    handle.commitOutlookOnlineData("blob");
    handle.commitOutlookUsername("anna", "first");
    handle.commitOutlookUsername("anna", "second");
    EXPECT_TRUE(watch.records().empty());
  }
  QString username;
  QString password;
  handle.getOutlookUsername(&username, &password);
  EXPECT_EQ(password, "second");
  EXPECT_EQ(handle.getOutlookOnlineData(), QByteArray("blob"));
  EXPECT_EQ(watch.count(KZTraceLevel::Warning), 1);
  handle.useStorage(KZKeyChainHandle::Storage::Memory);
}

TEST(NoBus, AnswersAtOnce) {
  for (const char* address : {"unix:path=/nonexistent/bus", "garbage", ""}) {
    SCOPED_TRACE(address);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    expectMemoryAfterOneWarning();
    expectUnavailable();
  }
}
