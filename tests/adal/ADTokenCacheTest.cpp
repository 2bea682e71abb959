#include <QCryptographicHash>
#include <thread>

#include "tests/adal/SignInFixture.h"

namespace {

QList<ADTokenCacheItem> twoItems() {
  return {accessItem(QStringLiteral("J\u00fcrgen@example.com"), "https://login.example.com"),
          refreshItem("bob@example.com", "https://login.example.com", "refresh-1")};
}

// What the first released version stored for twoItems.
constexpr char storedByVersion1[] =
    "S1pUQwABAAAAAgAAABNKw7xyZ2VuQGV4YW1wbGUuY29tAAAAGWh0dHBzOi8vbG9naW4uZXhhbXBsZS5jb20AAAAY"
    "aHR0cHM6Ly9tYWlsLmV4YW1wbGUuY29tAAAACGNsaWVudC0xAAAAHWFjY2Vzcy1vZi1Kw7xyZ2VuQGV4YW1wbGUu"
    "Y29t/////wABAAAGkpHgfAAAAAAPYm9iQGV4YW1wbGUuY29tAAAAGWh0dHBzOi8vbG9naW4uZXhhbXBsZS5jb23/"
    "////AAAACGNsaWVudC0x/////wAAAAlyZWZyZXNoLTEBAAAAAAAAAAAAo0dfFdOdrt+2UUxcqtPsQivnHN1yPdLX"
    "BZ9716ZOo/g=";

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

TEST(ADTokenCacheTest, ASignInReplacesWhatItSupersedes) {
  const QString old("https://old.example.com");
  const QString now("https://login.example.com");
  const auto of = [](ADTokenCacheItem item, const char* client, const char* resource = nullptr) {
    item.clientId = client;
    if (resource != nullptr) item.resource = resource;
    return item;
  };
  const QString user("alice@example.com");
  const QList<ADTokenCacheItem> others{accessItem("bob@example.com", old),
                                       refreshItem("bob@example.com", old, "bobs")};
  const QList<ADTokenCacheItem> otherResource{of(accessItem(user, old), "client-2", "files"),
                                              of(refreshItem(user, old, "still-needed"), "client-2")};
  const QList<ADTokenCacheItem> superseded{accessItem("Alice@example.com", now),
                                           refreshItem("Alice@example.com", now, "before"),
                                           of(accessItem(user, now), "client-2"),
                                           of(refreshItem(user, now, "of-the-old-client"), "client-2"),
                                           accessItem(user, old),
                                           refreshItem(user, old, "of-the-old-authority"),
                                           of(accessItem(user, old), "client-2")};
  ADTokenCacheItem access = accessItem(user, now);
  access.accessToken = "fresh";
  const ADTokenCacheItem refresh = refreshItem(user, now, "fresh");

  ADTokenCache cache;
  ASSERT_FALSE(cache.replaceAllItems(superseded + others + otherResource));
  ASSERT_FALSE(cache.addSignedInItems({refresh, access}));
  EXPECT_EQ(cache.allItems().items, (QList{refresh, access} + others + otherResource));

  // Without a refresh token of its own it uses the one that is stored.
  access.accessToken = "fresher";
  ASSERT_FALSE(cache.replaceAllItems(others + QList{of(accessItem(user, now), "client-2"), refresh}));
  ASSERT_FALSE(cache.addSignedInItems({access}));
  EXPECT_EQ(cache.allItems().items, (QList{refresh, access} + others));

  // Where there is none, the pair of another client must not be taken from the user.
  ASSERT_FALSE(cache.replaceAllItems(otherResource));
  access.resource = "files";
  ASSERT_FALSE(cache.addSignedInItems({access}));
  EXPECT_EQ(cache.allItems().items, otherResource + QList{access});
}

TEST(ADTokenCacheTest, ReadsWhatAnEarlierVersionWrote) {
  ADTokenCache cache;
  ASSERT_FALSE(cache.deserialize(QByteArray::fromBase64(storedByVersion1)));
  EXPECT_EQ(cache.allItems().items, twoItems());
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
