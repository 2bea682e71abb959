#include <QCryptographicHash>
#include <thread>

#include "tests/adal/SignInFixture.h"

namespace {

QList<ADTokenCacheItem> twoItems() {
  return {accessItem(QStringLiteral("J\u00fcrgen@example.com"), "https://login.example.com"),
          refreshItem("bob@example.com", "https://login.example.com", "refresh-1")};
}

QByteArray withCheckSum(const QByteArray& body) {
  return body + QCryptographicHash::hash(body, QCryptographicHash::Sha256);
}

TEST(ADTokenCacheTest, StoredItemsAreReadBackUnchanged) {
  ADTokenCache cache;
  ASSERT_FALSE(cache.replaceAllItems(twoItems()));
  ADTokenCache other;
  ASSERT_FALSE(other.deserialize(cache.serialize()));
  EXPECT_EQ(other.allItems().items, cache.allItems().items);
  ASSERT_FALSE(other.deserialize(std::nullopt));
  EXPECT_TRUE(other.allItems().items.isEmpty());
}

TEST(ADTokenCacheTest, DataThatIsNotOursIsAFailureAndChangesNothing) {
  ADTokenCache cache;
  ASSERT_FALSE(cache.replaceAllItems(twoItems()));
  const QByteArray good = cache.serialize();
  const QByteArray body = good.chopped(32);
  QByteArray olderVersion = body;
  olderVersion[5] = '\0';
  QByteArray manyItems = body;
  manyItems[6] = '\x7f';
  QList<QByteArray> cases{"",
                          "somebody else's",
                          QByteArray(100, '\0'),
                          withCheckSum(olderVersion),
                          withCheckSum(manyItems),
                          withCheckSum(body.chopped(1)),
                          withCheckSum(body + "x")};
  for (qsizetype size = 0; size < good.size(); size += 7) cases.append(good.first(size));
  for (qsizetype at = 0; at < good.size(); at += 11) {
    QByteArray damaged = good;
    damaged[at] = static_cast<char>(damaged[at] ^ 1);
    cases.append(damaged);
  }
  for (const QByteArray& data : cases) {
    const ADTokenCache::Failure failure = cache.deserialize(data);
    ASSERT_TRUE(failure) << data.toHex().constData();
    EXPECT_EQ(failure->code, ADErrorCode::CacheFormat);
    EXPECT_EQ(cache.allItems().items, twoItems());
  }
}

class RecordingDelegate final : public ADTokenCacheDelegate {
 public:
  void willAccessCache(ADTokenCache&) override { calls.append("will access"); }
  void didAccessCache(ADTokenCache&) override { calls.append("did access"); }
  void willWriteCache(ADTokenCache&) override { calls.append("will write"); }
  void didWriteCache(ADTokenCache& cache) override {
    calls.append("did write");
    nested = cache.allItems().error;
  }

  QStringList calls;
  std::optional<ADError> nested;
};

TEST(ADTokenCacheTest, DelegateStandsAroundEveryAccess) {
  RecordingDelegate delegate;
  ADTokenCache cache;
  cache.setDelegate(&delegate);
  const ADTokenCacheItem item = twoItems().first();
  const auto expectCalls = [&](const char* step, const QStringList& calls) {
    EXPECT_EQ(std::exchange(delegate.calls, {}), calls) << step;
  };
  EXPECT_FALSE(cache.allItems().error);
  expectCalls("read", {"will access", "did access"});
  EXPECT_FALSE(cache.addOrUpdateItems({item}));
  expectCalls("add", {"will write", "did write"});
  ASSERT_TRUE(delegate.nested) << "a delegate that asks the cache would go round for ever";
  EXPECT_EQ(delegate.nested->code, ADErrorCode::CacheBusy);
}

TEST(ADTokenCacheTest, UpdateTakesThePredecessorsPlace) {
  ADTokenCache cache;
  ASSERT_FALSE(cache.replaceAllItems(twoItems()));
  ADTokenCacheItem newer = twoItems().first();
  newer.userInformation.userId = newer.userInformation.userId.toUpper();
  newer.accessToken = "newer";
  ADTokenCacheItem otherResource = newer;
  otherResource.resource = "https://files.example.com";
  ADTokenCacheItem refresh = twoItems().last();
  refresh.resource = "https://anywhere.example.com";
  ASSERT_FALSE(cache.addOrUpdateItems({newer, otherResource, refresh}));
  EXPECT_EQ(cache.allItems().items, (QList<ADTokenCacheItem>{newer, refresh, otherResource}));
}

TEST(ADTokenCacheTest, ThreadsLoseNothing) {
  OutsideStorage storage;
  ADTokenCache cache;
  cache.setDelegate(&storage);
  const auto fill = [&cache](const char* name) {
    for (int i = 0; i < 50; ++i) {
      EXPECT_FALSE(
          cache.addOrUpdateItems({accessItem(QString::number(i) + name, "https://login.example.com")}));
    }
  };
  std::thread one(fill, "one");
  std::thread two(fill, "two");
  one.join();
  two.join();
  EXPECT_EQ(cache.allItems().items.size(), 100);
}

}  // namespace
