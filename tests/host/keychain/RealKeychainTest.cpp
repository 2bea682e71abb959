#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <atomic>
#include <optional>
#include <thread>

#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/SecretServiceKeychain.h"
#include "tests/host/keychain/ServiceProcess.h"
#include "tests/kit/SessionRun.h"
#include "tests/kit/TraceCollector.h"

namespace {

using Status = KZKeychainBackend::Status;
using Hindrance = KZKeyChainHandle::Hindrance;
using Storage = KZKeyChainHandle::Storage;

// A loaded machine must not turn a working keychain into a missing one.
constexpr std::chrono::seconds kPatient(20);

KZKeychainBackend::Item item(const QString& account) {
  return {QStringLiteral("test"), account};
}

const KZKeychainBackend::Item kOnline{QStringLiteral("Brenn Mivra Meetings"),
                                      QStringLiteral("OutlookAccount(Online)")};

void keep(const QByteArray& blob) {
  SecretServiceKeychain keychain(kPatient);
  ASSERT_EQ(keychain.write(kOnline, blob), Status::Done);
}

KZKeychainBackend::Answer kept() {
  SecretServiceKeychain keychain(kPatient);
  return keychain.read(kOnline);
}

QString everyPlane() {
  QString text = QString("p\u00e4ss:\r\n") + QChar(0) + "\"\\";
  for (char32_t plane = 0; plane < 17; ++plane) {
    const char32_t sign = plane * 0x10000 + 0x1234;
    text += QString::fromUcs4(&sign, 1);
  }
  return text;
}

}  // namespace

TEST(RealKeychain, KeepsBytesExactlyAcrossClients) {
  const ServiceProcess keyring;
  const QByteArray secrets[] = {QByteArray(""), QByteArray("a\0b\xff\n", 5), everyPlane().toUtf8(),
                                QByteArray(1024 * 1024, '\x9c')};
  for (const QByteArray& secret : secrets) {
    SecretServiceKeychain writer(kPatient);
    ASSERT_EQ(writer.write(item("bytes"), "before"), Status::Done);
    ASSERT_EQ(writer.write(item("bytes"), secret), Status::Done);
    SecretServiceKeychain reader(kPatient);
    const auto answer = reader.read(item("bytes"));
    EXPECT_EQ(answer.status, Status::Done);
    EXPECT_EQ(answer.secret, secret);
    EXPECT_EQ(reader.read(item("other")).status, Status::NotFound);
    EXPECT_EQ(reader.remove(item("bytes")), Status::Done);
    EXPECT_EQ(writer.remove(item("bytes")), Status::NotFound);
    EXPECT_EQ(writer.read(item("bytes")).status, Status::NotFound);
  }
}

TEST(RealKeychain, ServesSeveralThreadsAtOnce) {
  const ServiceProcess keyring;
  SecretServiceKeychain keychain(kPatient);
  std::atomic<int> exact = 0;
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([&, thread] {
      for (int turn = 0; turn < 10; ++turn) {
        const QByteArray secret = QByteArray::number(100 * thread + turn);
        const auto each = item(QString::number(thread));
        if (keychain.write(each, secret) == Status::Done && keychain.read(each).secret == secret) ++exact;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(exact, 40);
}

TEST(RealKeychain, GoesOnWithADaemonThatWasStartedAgain) {
  SecretServiceKeychain keychain(kPatient);
  auto keyring = std::make_unique<ServiceProcess>();
  ASSERT_EQ(keychain.write(item("kept"), "secret"), Status::Done);
  keyring.reset();
  keyring = std::make_unique<ServiceProcess>();
  EXPECT_EQ(keychain.read(item("kept")).secret, "secret");
  keyring.reset();
  keyring = std::make_unique<ServiceProcess>();
  EXPECT_EQ(keychain.write(item("kept"), "changed"), Status::Done);
  EXPECT_EQ(keychain.read(item("kept")).secret, "changed");
}

TEST(RealKeychain, HoldsTheHostsCredentials) {
  const ServiceProcess keyring;
  const TraceCollector watch;
  KZKeyChainHandle& handle = KZKeyChainHandle::sharedInstance();
  const auto nextRun = [&] { handle.useBackend(std::make_shared<SecretServiceKeychain>(kPatient)); };
  nextRun();
  (void)handle.removeOutlookCredential();
  (void)handle.deleteGenericPassword(kOnline);
  QString username = "x";
  QString password = "x";
  handle.getOutlookUsername(&username, &password);
  EXPECT_TRUE(username.isNull() && password.isNull());
  EXPECT_FALSE(handle.getOutlookOnlineData().has_value());

  handle.commitOutlookUsername("DOMAIN\\a:b\r\n", everyPlane());
  handle.commitOutlookOnlineData("blob");
  nextRun();
  handle.getOutlookUsername(&username, &password);
  EXPECT_EQ(username, "DOMAIN\\a:b\r\n");
  EXPECT_EQ(password, everyPlane());
  EXPECT_EQ(handle.getOutlookOnlineData(), QByteArray("blob"));
  EXPECT_EQ(handle.copyGenericPassword(kOnline).secret, "blob");
  EXPECT_EQ(handle.deleteGenericPassword(kOnline), Status::Done);

  handle.commitOutlookUsername("", "");
  nextRun();
  EXPECT_FALSE(handle.getOutlookOnlineData().has_value());
  handle.getOutlookUsername(&username, &password);
  EXPECT_TRUE(username.isEmpty() && !username.isNull());
  EXPECT_EQ(handle.removeOutlookCredential(), Status::Done);
  handle.getOutlookUsername(&username, &password);
  EXPECT_TRUE(username.isNull() && password.isNull());
  EXPECT_TRUE(watch.records().empty());
  handle.useStorage(Storage::Memory);
}

// A keyring that is away for three seconds at the start, then in the middle of a run. Nothing is lost, and
// what is told has been confirmed.
TEST(RealKeychain, IsStoppedForThreeSecondsAndGoesOn) {
  const ServiceProcess keyring;
  keep("before");
  const TraceCollector watch;
  KZKeyChainHandle& handle = KZKeyChainHandle::sharedInstance();
  QSignalSpy written(&handle, &KZKeyChainHandle::itemWritten);
  QSignalSpy removed(&handle, &KZKeyChainHandle::itemRemoved);
  const auto pauseFor3s = [&] {
    keyring.pause();
    QTimer::singleShot(3000, &handle, [&] { keyring.resume(); });
  };

  pauseFor3s();
  handle.useStorage(Storage::System);
  EXPECT_FALSE(handle.getOutlookOnlineData().has_value());
  EXPECT_EQ(handle.hindrance(), Hindrance::Silent);
  handle.commitOutlookUsername("anna", "typed meanwhile");
  EXPECT_TRUE(QTest::qWaitFor([&] { return handle.getOutlookOnlineData() == QByteArray("before"); }, 20'000))
      << "the late read is taken";
  EXPECT_TRUE(QTest::qWaitFor([&] { return written.size() == 1; }, 20'000));
  EXPECT_TRUE(QTest::qWaitFor([&] { return handle.hindrance() == Hindrance::None; }, 20'000));

  pauseFor3s();
  EXPECT_EQ(handle.deleteGenericPassword(kOnline), Status::Silent);
  EXPECT_FALSE(handle.getOutlookOnlineData().has_value());
  handle.commitOutlookUsername("anna", "changed");
  EXPECT_EQ(removed.size(), 0);
  EXPECT_EQ(written.size(), 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return removed.size() == 1 && written.size() == 2; }, 20'000));
  handle.useStorage(Storage::Memory);
  EXPECT_EQ(kept().status, Status::NotFound);
}

TEST(RealKeychain, IsLockedThenKilledThenUnlocked) {
  { const ServiceProcess first; }  // makes the keyring
  const TraceCollector watch;
  KZKeyChainHandle& handle = KZKeyChainHandle::sharedInstance();
  QSignalSpy written(&handle, &KZKeyChainHandle::itemWritten);
  QSignalSpy changed(&handle, &KZKeyChainHandle::hindranceChanged);
  std::optional<ServiceProcess> keyring(ServiceProcess::Keyring::Locked);
  handle.useStorage(Storage::System);
  EXPECT_FALSE(handle.getOutlookOnlineData().has_value());
  handle.commitOutlookOnlineData("blob");
  EXPECT_EQ(handle.removeOutlookCredential(), Status::Locked);
  EXPECT_TRUE(QTest::qWaitFor([&] { return changed.size() == 1; }));
  EXPECT_EQ(handle.hindrance(), Hindrance::Locked);
  keyring.reset();
  EXPECT_EQ(handle.removeOutlookCredential(), Status::NoKeyring);
  EXPECT_TRUE(QTest::qWaitFor([&] { return handle.hindrance() == Hindrance::NoKeyring; }));
  EXPECT_EQ(written.size(), 0);
  keyring.emplace();
  EXPECT_TRUE(QTest::qWaitFor([&] { return written.size() == 1; }, 20'000));
  EXPECT_TRUE(QTest::qWaitFor([&] { return changed.size() == 3; }, 20'000));
  EXPECT_EQ(handle.hindrance(), Hindrance::None);
  handle.useStorage(Storage::Memory);
  EXPECT_EQ(kept().secret, "blob");
}

// A whole process: what was confirmed is there in the next run, what was not is named, and the end is
// bounded.
TEST(RealKeychain, IsStoppedAtTheEndOfARun) {
  const ServiceProcess keyring;
  const auto password = [](const char* text) {
    return QStringLiteral(R"({"set": "keychain", "username": "ann", "password": "%1"})").arg(text);
  };
  const QStringList options = {"--keychain", "system", "--writes", "--trace"};
  QProcess session;
  session.start(PREFS_SESSION, QStringList{"--plugin", FAKE_PLUGIN} + options);
  session.write(password("first").toUtf8() + '\n');
  QByteArray output;
  EXPECT_TRUE(QTest::qWaitFor([&] { return (output += session.readAll()).contains("kept"); }, 20'000));
  keyring.pause();
  QElapsedTimer timer;
  timer.start();
  session.write(password("second").toUtf8() + '\n');
  session.closeWriteChannel();
  EXPECT_TRUE(session.waitForFinished(20'000));
  EXPECT_EQ(session.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(session.exitCode(), 0);
  // One deadline for the step, the last chance, and the end of the process.
  EXPECT_LT(timer.elapsed(), 1000 + 2000 + 2500);
  output += session.readAll();
  EXPECT_EQ(output.count("kept"), 1) << output.constData();
  EXPECT_EQ(output.count(R"("trace":"error")"), 1) << output.constData();
  EXPECT_FALSE(output.contains("second"));
  keyring.resume();
  const SessionRun next = runSessionWith(FAKE_PLUGIN, {R"({"get": "keychain"})"}, options);
  // The keyring may have carried out what it got and did not confirm.
  const QString found = next.result().value("outlookPassword").toString();
  EXPECT_TRUE(found == "first" || found == "second") << found.toStdString();
}
