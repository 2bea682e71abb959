#include "companion/app/FaultNotice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QLabel>
#include <QTest>
#include <QThread>
#include <atomic>
#include <memory>

#include "host/KZUtility/KZKeyChainHandle.h"
#include "tests/host/BrokenDisk.h"
#include "tests/kit/StoreFolder.h"
#include "tests/kit/TraceCollector.h"

namespace {

struct FaultNoticeTest : testing::Test {
  bool says(const QString& what) const {
    return notice->isVisibleTo(&window) && notice->text().contains(what);
  }

  const TraceCollector traces;
  QWidget window;
  QLabel* notice = createFaultNotice(&window);
};

TEST_F(FaultNoticeTest, ShowsAFullDiskUntilAWriteSucceeds) {
  const StoreFolder folder;
  EXPECT_FALSE(notice->isVisibleTo(&window));
  {
    const FullDisk full(100);
    StoreFolder::store().setSiteName("lost.example");
    EXPECT_TRUE(says("the disk is full")) << qPrintable(notice->text());
    EXPECT_TRUE(says("the next change saves them all"));
  }
  EXPECT_TRUE(says("the disk is full"));
  StoreFolder::store().setCdnUrl("any");
  EXPECT_FALSE(notice->isVisibleTo(&window));
  folder.reopen();
  EXPECT_EQ(StoreFolder::store().siteName(), "lost.example");
}

TEST_F(FaultNoticeTest, NamesThePlaceToMend) {
  struct Row {
    QByteArray bytes;
    QString what;
  };
  const Row rows[] = {{StoreFolder::plist(""), "config/store is read-only"},
                      {"damaged", "config/store/preferences.plist is damaged"}};
  for (const Row& row : rows) {
    const OrdinaryUser user;
    const StoreFolder folder;
    folder.replace(row.bytes);
    ASSERT_EQ(::chmod(folder.folder().toUtf8().constData(), 0500), 0);
    folder.reopen();
    StoreFolder::store().setSiteName("any");
    EXPECT_TRUE(says(row.what)) << qPrintable(notice->text());
    // A notice created later shows it too.
    EXPECT_EQ(createFaultNotice(&window)->text(), notice->text());
    ASSERT_EQ(::chmod(folder.folder().toUtf8().constData(), 0700), 0);
  }
}

TEST_F(FaultNoticeTest, ShowsWhereDamagedSettingsAreInTheRunThatFoundThem) {
  const StoreFolder folder;
  folder.openWith("damaged");
  const QLabel& found = *createFaultNotice(&window);
  EXPECT_TRUE(found.isVisibleTo(&window));
  EXPECT_TRUE(found.text().contains("preferences.plist.damaged-")) << qPrintable(found.text());
  EXPECT_TRUE(QFile::exists(StoreFolder::store().setAsidePath()));
  folder.reopen();
  EXPECT_FALSE(createFaultNotice(&window)->isVisibleTo(&window));
}

// Has nothing, and says what the test wants.
struct SayingKeyring final : KZKeychainBackend {
  Answer read(const Item&) override {
    return {status == Status::Done ? Status::NotFound : status.load(), {}};
  }
  Status write(const Item&, const QByteArray&) override { return status; }
  Status remove(const Item&) override { return status; }

  std::atomic<Status> status = Status::Done;
};

TEST_F(FaultNoticeTest, NamesWhatHindersTheKeyringUntilItWorksAgain) {
  struct Row {
    KZKeychainBackend::Status status;
    const char* what;
  };
  using Status = KZKeychainBackend::Status;
  const Row rows[] = {{Status::Locked, "Unlock the keyring"},
                      {Status::NoKeyring, "there is no keyring"},
                      {Status::Silent, "does not answer"}};
  KZKeyChainHandle& keychain = KZKeyChainHandle::sharedInstance();
  const auto keyring = std::make_shared<SayingKeyring>();
  keychain.useBackend(keyring);
  for (const Row& row : rows) {
    keyring->status = row.status;
    const std::unique_ptr<QThread> worker(
        QThread::create([&keychain] { keychain.commitOutlookUsername("ada", "s3cret"); }));
    worker->start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return says(row.what); })) << row.what;
    worker->wait();
    EXPECT_FALSE(notice->text().contains("s3cret"));
    EXPECT_EQ(createFaultNotice(&window)->text(), notice->text());
    keyring->status = Status::Done;
    keychain.commitOutlookUsername("ada", "other");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !notice->isVisibleTo(&window); }));
  }
  keychain.useStorage(KZKeyChainHandle::Storage::Memory);
}

}  // namespace
