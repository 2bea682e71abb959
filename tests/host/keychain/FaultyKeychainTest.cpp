#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <functional>

#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/SecretServiceKeychain.h"
#include "tests/host/keychain/ServiceProcess.h"
#include "tests/kit/TraceCollector.h"

namespace {

using Status = KZKeychainBackend::Status;
using Hindrance = KZKeyChainHandle::Hindrance;
using Storage = KZKeyChainHandle::Storage;

constexpr std::chrono::milliseconds kDeadline(400);
constexpr qint64 kMargin = 700;
constexpr int kPatience = 20'000;

const KZKeychainBackend::Item kOnlineItem{QStringLiteral("Brenn Mivra Meetings"),
                                          QStringLiteral("OutlookAccount(Online)")};

KZKeyChainHandle& handle() {
  return KZKeyChainHandle::sharedInstance();
}

struct Fault {
  const char* name;
  Status status;
  Hindrance hindrance;
};
constexpr Fault kFaults[] = {{"silent", Status::Silent, Hindrance::Silent},
                             {"locked", Status::Locked, Hindrance::Locked},
                             {"absent", Status::NoKeyring, Hindrance::NoKeyring},
                             {"dies", Status::NoKeyring, Hindrance::NoKeyring}};

// Each kind of call says in time what is wrong.
void expectStatus(Status status) {
  SecretServiceKeychain keychain(kDeadline);
  const std::function<Status()> calls[] = {[&] { return keychain.read(kOnlineItem).status; },
                                           [&] { return keychain.write(kOnlineItem, "x"); },
                                           [&] { return keychain.remove(kOnlineItem); }};
  qint64 longest = kDeadline.count() + kMargin;
  for (const auto& call : calls) {
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(call(), status);
    EXPECT_LT(timer.elapsed(), longest);
    longest *= 2;
  }
}

// All that a host does with its secrets, while the keyring does not work.
void expectMemoryAfterOneWarning(Hindrance hindrance) {
  const TraceCollector watch;
  QSignalSpy changes(&handle(), &KZKeyChainHandle::hindranceChanged);
  QSignalSpy kept(&handle(), &KZKeyChainHandle::itemWritten);
  handle().useStorage(Storage::System);
  QElapsedTimer timer;
  timer.start();
  EXPECT_FALSE(handle().getOutlookOnlineData().has_value());
  EXPECT_LT(timer.elapsed(), 1000 + kMargin);
  timer.restart();
  handle().commitOutlookUsername("anna", "s3cr3t");
  handle().commitOutlookOnlineData("blob");
  QString username;
  QString password;
  handle().getOutlookUsername(&username, &password);
  EXPECT_EQ(username, "anna");
  EXPECT_EQ(password, "s3cr3t");
  EXPECT_EQ(handle().getOutlookOnlineData(), QByteArray("blob"));
  const Status removal = handle().removeOutlookCredential();
  EXPECT_TRUE(removal != Status::Done && removal != Status::NotFound);
  handle().getOutlookUsername(&username, &password);
  EXPECT_TRUE(username.isNull());
  EXPECT_LT(timer.elapsed(), kMargin) << "only the first call waits";
  EXPECT_TRUE(QTest::qWaitFor([&] { return changes.size() == 1; }));
  EXPECT_EQ(handle().hindrance(), hindrance);
  EXPECT_EQ(watch.count(KZTraceLevel::Warning), 1);
  EXPECT_EQ(watch.records().size(), 1U);
  timer.restart();
  handle().useStorage(Storage::Memory);
  EXPECT_LT(timer.elapsed(), 2000 + kMargin);
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 2) << watch.lines().join('\n').toStdString();
  EXPECT_FALSE(watch.lines().join('\n').contains("s3cr3t"));
  EXPECT_FALSE(handle().getOutlookOnlineData().has_value());
  EXPECT_EQ(handle().hindrance(), Hindrance::None);
  EXPECT_EQ(kept.size(), 0);
}

}  // namespace

TEST(FaultyKeychain, DelaysTheStartByTheDeadlineAtMostAndNeverPrompts) {
  for (const Fault& fault : kFaults) {
    SCOPED_TRACE(fault.name);
    {
      ServiceProcess service(fault.name);
      expectMemoryAfterOneWarning(fault.hindrance);
      EXPECT_FALSE(service.said().contains("prompt"));
    }
    ServiceProcess service(fault.name);
    expectStatus(fault.status);
    EXPECT_FALSE(service.said().contains("prompt"));
  }
}

TEST(SlowKeychain, IsServedAndDelaysTheStartOnce) {
  for (const char* fault : {"slow", "late"}) {
    SCOPED_TRACE(fault);
    const ServiceProcess service(fault);
    const TraceCollector watch;
    handle().useStorage(Storage::System);
    QElapsedTimer timer;
    timer.start();
    QString username;
    QString password;
    for (int turn = 0; turn < 10; ++turn) {
      (void)handle().getOutlookOnlineData();
      handle().getOutlookUsername(&username, &password);
    }
    EXPECT_LT(timer.elapsed(), 1000 + kMargin);
    EXPECT_TRUE(
        QTest::qWaitFor([] { return handle().getOutlookOnlineData() == QByteArray("kept"); }, kPatience));
    EXPECT_TRUE(QTest::qWaitFor([] { return handle().hindrance() == Hindrance::None; }, kPatience));
    handle().useStorage(Storage::Memory);
  }
}

TEST(FaultyKeychain, OneThatForgetsLosesNothingInTheRun) {
  const ServiceProcess service("forgets");
  const TraceCollector watch;
  handle().useStorage(Storage::System);
  handle().commitOutlookOnlineData("blob");
  handle().settle();
  EXPECT_EQ(handle().getOutlookOnlineData(), QByteArray("blob"));
  EXPECT_EQ(handle().deleteGenericPassword(kOnlineItem), Status::NotFound);
  handle().useStorage(Storage::Memory);
  EXPECT_TRUE(watch.records().empty());
}

TEST(LockedItem, IsUnlockedByTheUserWhoIsAskedOnce) {
  struct Row {
    const char* user;
    KZKeyChainHandle::Unlocking unlocking;
    int prompts;  // lines: one for asking the service, one for showing the prompt
    bool isRead;
  };
  using Unlocking = KZKeyChainHandle::Unlocking;
  for (const Row& row :
       {Row{"accepted", Unlocking::Never, 0, false}, Row{"accepted", Unlocking::AskOnce, 2, true},
        Row{"dismissed", Unlocking::AskOnce, 2, false}}) {
    SCOPED_TRACE(row.user);
    ServiceProcess service(row.user);
    const TraceCollector watch;
    handle().useStorage(Storage::System, row.unlocking);
    EXPECT_EQ(handle().copyGenericPassword(kOnlineItem).status, Status::Locked);
    EXPECT_EQ(handle().hindrance(), Hindrance::Locked);
    // The prompt is answered after 1.5 s, and the queue tries again and again meanwhile.
    const auto isRead = [] { return handle().getOutlookOnlineData() == QByteArray("kept"); };
    EXPECT_EQ(QTest::qWaitFor(isRead, row.isRead ? kPatience : 2500), row.isRead);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return handle().hindrance() == (row.isRead ? Hindrance::None : Hindrance::Locked); }));
    EXPECT_EQ(service.said().count("prompt"), row.prompts);
    handle().useStorage(Storage::Memory);
  }
}

TEST(SlowKeychain, AsksOnceBeforeItRemoves) {
  ServiceProcess service("keeping");
  const TraceCollector watch;
  handle().useStorage(Storage::System);
  EXPECT_EQ(handle().getOutlookOnlineData(), QByteArray("kept"));
  EXPECT_EQ(handle().deleteGenericPassword(kOnlineItem), Status::Silent) << "the user takes 1.5 s";
  EXPECT_FALSE(handle().getOutlookOnlineData());
  EXPECT_TRUE(QTest::qWaitFor([] { return handle().hindrance() == Hindrance::Locked; }, kPatience));
  QTest::qWait(1500);  // time for more tries
  EXPECT_EQ(handle().deleteGenericPassword(kOnlineItem), Status::Locked);
  EXPECT_EQ(service.said().count("prompt"), 1);
  handle().useStorage(Storage::Memory);
}

TEST(NoBus, AnswersAtOnce) {
  for (const char* address : {"unix:path=/nonexistent/bus", "garbage", ""}) {
    SCOPED_TRACE(address);
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    expectMemoryAfterOneWarning(Hindrance::NoKeyring);
    expectStatus(Status::NoKeyring);
  }
}

TEST(NoBus, TheEndOfTheEventLoopNamesWhatIsLost) {
  qputenv("DBUS_SESSION_BUS_ADDRESS", "garbage");
  const TraceCollector watch;
  handle().useStorage(Storage::System);
  handle().commitOutlookUsername("anna", "s3cr3t");
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QCoreApplication::exec();
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 1);
  EXPECT_TRUE(watch.lastText().contains("OutlookAccount(Onpremise)")) << watch.lastText().toStdString();
  handle().useStorage(Storage::Memory);
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 1) << "told once";
}
