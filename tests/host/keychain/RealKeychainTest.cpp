#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <atomic>
#include <thread>

#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/SecretServiceKeychain.h"
#include "tests/host/keychain/ServiceProcess.h"
#include "tests/kit/TraceCollector.h"

namespace {

using Status = KZKeychainBackend::Status;

// A loaded machine must not turn a working keychain into a missing one.
constexpr std::chrono::seconds kPatient(20);

KZKeychainBackend::Item item(const QString& account) {
  return {QStringLiteral("test"), account};
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
  const KZKeychainBackend::Item online{"Brenn Mivra Meetings", "OutlookAccount(Online)"};
  handle.removeOutlookCredential();
  (void)handle.deleteGenericPassword(online);
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
  EXPECT_EQ(handle.copyGenericPassword(online).secret, "blob");
  EXPECT_EQ(handle.deleteGenericPassword(online), Status::Done);

  handle.commitOutlookUsername("", "");
  nextRun();
  EXPECT_FALSE(handle.getOutlookOnlineData().has_value());
  handle.getOutlookUsername(&username, &password);
  EXPECT_TRUE(username.isEmpty() && !username.isNull());
  handle.removeOutlookCredential();
  handle.getOutlookUsername(&username, &password);
  EXPECT_TRUE(username.isNull() && password.isNull());
  EXPECT_TRUE(watch.records().empty());
  handle.useStorage(KZKeyChainHandle::Storage::Memory);
}
