#include "KZPreference/authentication/ADMivraCacheDelegate.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <map>
#include <thread>

#include "adal/ADAuthenticationSettings.h"
#include "adal/ADTokenCache.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "tests/kit/TraceCollector.h"

namespace {

// Its secrets belong to the keychain's worker, and to the test while that has nothing to do.
class FakeKeychain final : public KZKeychainBackend {
 public:
  Answer read(const Item& item) override {
    if (fault != Status::Done) return {fault, {}};
    const auto found = secrets.find({item.service, item.account});
    if (found == secrets.end()) return {Status::NotFound, {}};
    return {Status::Done, found->second};
  }
  Status write(const Item& item, const QByteArray& secret) override {
    if (fault != Status::Done) return fault;
    secrets[{item.service, item.account}] = secret;
    ++writes;
    return Status::Done;
  }
  Status remove(const Item& item) override {
    if (fault != Status::Done) return fault;
    return secrets.erase({item.service, item.account}) > 0 ? Status::Done : Status::NotFound;
  }

  std::map<std::pair<QString, QString>, QByteArray> secrets;
  int writes = 0;
  std::atomic<Status> fault = Status::Done;
};

const KZKeychainBackend::Item onlineItem{"Brenn Mivra Meetings", "OutlookAccount(Online)"};
const std::pair<QString, QString> tokenItem{onlineItem.service, onlineItem.account};

ADTokenCacheItem keptItem(const char* user) {
  ADTokenCacheItem item;
  item.userInformation.userId = QLatin1String(user);
  item.accessToken = "access";
  return item;
}

class ADMivraCacheDelegateTest : public testing::Test {
 protected:
  ADMivraCacheDelegateTest() : keychain(std::make_shared<FakeKeychain>()) {
    handle.useBackend(keychain);
    ADMivraCacheDelegate::load();
    ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(&delegate);
    EXPECT_FALSE(cache.deserialize(std::nullopt));
  }
  ~ADMivraCacheDelegateTest() override {
    EXPECT_FALSE(cache.deserialize(std::nullopt));
    ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(nullptr);
    handle.useStorage(KZKeyChainHandle::Storage::Memory);
  }

  void add(const char* user) {
    ASSERT_FALSE(cache.addOrUpdateItems({keptItem(user)}));
    handle.settle();
  }
  QStringList users() {
    QStringList names;
    for (const ADTokenCacheItem& item : cache.allItems().items) names.append(item.userInformation.userId);
    return names;
  }

  TraceCollector trace;
  KZKeyChainHandle& handle = KZKeyChainHandle::sharedInstance();
  std::shared_ptr<FakeKeychain> keychain;
  ADTokenCache& cache = ADTokenCache::defaultCache();
  ADMivraCacheDelegate& delegate = ADMivraCacheDelegate::sharedInstance();
};

TEST_F(ADMivraCacheDelegateTest, KeychainIsReadBeforeEveryAccessAndWrittenAfterEveryChange) {
  add("one");
  EXPECT_EQ(keychain->writes, 1);
  const QByteArray onlyOne = keychain->secrets.at(tokenItem);
  add("two");
  EXPECT_EQ(users(), (QStringList{"one", "two"}));
  EXPECT_EQ(keychain->writes, 2) << "reading writes nothing";

  handle.commitOutlookOnlineData(onlyOne);
  EXPECT_EQ(users(), QStringList{"one"});
  add("three");
  EXPECT_EQ(users(), (QStringList{"one", "three"}));

  EXPECT_EQ(handle.deleteGenericPassword(onlineItem), KZKeychainBackend::Status::Done);
  EXPECT_EQ(users(), (QStringList{"one", "three"})) << "a read without an item keeps what is there";
  add("four");
  EXPECT_EQ(users(), QStringList{"four"}) << "a write without an item starts from nothing";
}

TEST_F(ADMivraCacheDelegateTest, UnreadableDataIsAnEmptyCacheAndStaysUntilATokenIsWritten) {
  add("one");
  const QByteArray whole = keychain->secrets.at(tokenItem);
  for (const QByteArray& bad : {whole.chopped(5), QByteArray("{\"version\":0}"), QByteArray("")}) {
    ASSERT_FALSE(cache.deserialize(std::nullopt));
    handle.commitOutlookOnlineData(bad);
    const auto traced = [this] { return trace.lines().filter("error error:unreadable cache").size(); };
    const qsizetype tracedBefore = traced();
    EXPECT_EQ(users(), QStringList());
    EXPECT_TRUE(QTest::qWaitFor([&] { return traced() > tracedBefore; }));
    handle.settle();
    EXPECT_EQ(keychain->secrets.at(tokenItem), bad);
    add("new");
    EXPECT_EQ(users(), QStringList{"new"});
    EXPECT_NE(keychain->secrets.at(tokenItem), bad);
  }
}

TEST_F(ADMivraCacheDelegateTest, ClearingEmptiesTheCacheAndTheKeychain) {
  add("one");
  OSStatusError error;
  EXPECT_TRUE(delegate.clearCacheWithError(&error));
  EXPECT_FALSE(keychain->secrets.contains(tokenItem));
  EXPECT_EQ(users(), QStringList());
  EXPECT_TRUE(delegate.clearCacheWithError(&error)) << "nothing left to delete counts as deleted";
  EXPECT_TRUE(delegate.clearCacheWithError(nullptr));
  EXPECT_EQ(error.code, 0);
  EXPECT_EQ(delegate.readFromKeychain(), -25300);
  EXPECT_EQ(delegate.writeToKeychain(), -25300);
  EXPECT_FALSE(keychain->secrets.contains(tokenItem));
}

TEST_F(ADMivraCacheDelegateTest, ClearingTellsWhatTheKeychainHasNotConfirmed) {
  struct Row {
    KZKeychainBackend::Status fault;
    qint32 code;
  };
  using Status = KZKeychainBackend::Status;
  for (const Row& row :
       {Row{Status::Locked, -25308}, Row{Status::NoKeyring, -25291}, Row{Status::Silent, -25291}}) {
    add("one");
    keychain->fault = row.fault;
    OSStatusError error;
    EXPECT_FALSE(delegate.clearCacheWithError(&error));
    EXPECT_FALSE(delegate.clearCacheWithError(nullptr));
    EXPECT_EQ(error.domain, "NSOSStatusErrorDomain");
    EXPECT_EQ(error.code, row.code);
    EXPECT_EQ(users(), QStringList()) << "gone for this run";
    keychain->fault = Status::Done;
    EXPECT_TRUE(QTest::qWaitFor(
        [] { return KZKeyChainHandle::sharedInstance().hindrance() == KZKeyChainHandle::Hindrance::None; }));
    EXPECT_FALSE(keychain->secrets.contains(tokenItem)) << "and in the keychain when it answers";
  }
}

TEST_F(ADMivraCacheDelegateTest, ATraceSinkMayLookUpATokenFromAnyThread) {
  handle.commitOutlookOnlineData("unreadable");
  int traced = 0;
  setKZTraceSink([&](const KZTraceRecord&) {
    if (traced++ > 0) return;
    std::thread([this] { static_cast<void>(cache.allItems()); }).join();
  });
  EXPECT_EQ(users(), QStringList());
  EXPECT_TRUE(QTest::qWaitFor([&] { return traced > 1; }));
  setKZTraceSink({});
}

TEST_F(ADMivraCacheDelegateTest, ClearingWhileAnotherThreadReadsDoesNotLockUp) {
  std::thread reader([this] {
    for (int i = 0; i < 500; ++i) static_cast<void>(cache.allItems());
  });
  for (int i = 0; i < 500; ++i) EXPECT_TRUE(delegate.clearCacheWithError(nullptr));
  reader.join();
}

TEST_F(ADMivraCacheDelegateTest, FilesHoldTheSameDataForTheirOwnerOnly) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("tokens");
  add("one");
  delegate.writeToFile(path);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), keychain->secrets.at(tokenItem));
  EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());

  const std::unique_ptr<ADMivraCacheDelegate> copy = delegate.copyWithZone();
  copy->readFromFile(folder.filePath("missing"));
  EXPECT_EQ(copy->writeToKeychain(), -25300);
  copy->readFromFile(path);
  EXPECT_EQ(handle.deleteGenericPassword(onlineItem), KZKeychainBackend::Status::Done);
  EXPECT_EQ(copy->writeToKeychain(), 0);
  EXPECT_EQ(users(), QStringList{"one"});
  EXPECT_EQ(defaultSavePath(), QDir::homePath() + "/Brenn Mivra Meetings.adalcache");
}

}  // namespace
