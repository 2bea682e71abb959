#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QNetworkAccessManager>
#include <QStringList>
#include <QTest>
#include <QUrl>
#include <memory>
#include <optional>

#include "adal/ADAuthenticationContext.h"
#include "adal/ADAuthenticationSettings.h"
#include "adal/ADTokenCache.h"
#include "adal/ADTokenCacheDelegate.h"
#include "sandbox/Authority.h"
#include "sandbox/HttpServer.h"

// A storage of the default cache that other processes can change.
class OutsideStorage final : public ADTokenCacheDelegate {
 public:
  void willAccessCache(ADTokenCache& cache) override;
  void didAccessCache(ADTokenCache& /*cache*/) override {}
  void willWriteCache(ADTokenCache& cache) override;
  void didWriteCache(ADTokenCache& cache) override;

  // Stores these items as another process would.
  void replace(const QList<ADTokenCacheItem>& items);

  std::optional<QByteArray> data;
  QList<QByteArray> writes;
};

ADTokenCacheItem accessItem(const QString& user, const QString& authority);
ADTokenCacheItem refreshItem(const QString& user, const QString& authority, const QString& refreshToken);

// A sandbox authority, a browser that only collects the addresses to open, and an empty cache.
class SignInFixture : public testing::Test {
 protected:
  using Result = std::optional<ADAuthenticationResult>;

  SignInFixture();
  ~SignInFixture() override;

  void signIn(Result& result);
  void signIn(Result& result, const QUrl& redirectUri);
  void refresh(Result& result, const QString& refreshToken);

  // Loads the address as a user's browser would, redirects included.
  QNetworkReply* visit(const QUrl& address);
  // Sends bytes to the callback port and returns the response; nothing when the port is closed.
  static std::optional<QByteArray> sendRaw(const QString& host, int port, const QByteArray& bytes);

  // The redirect address in the address of a sign-in page.
  static QUrl redirectOf(const QUrl& page);
  static QString queryValue(const QUrl& address, const char* name);

  bool waitFor(const Result& result, int milliseconds = 5000) {
    return QTest::qWaitFor([&] { return result.has_value(); }, milliseconds);
  }
  bool waitForBrowser(int times = 1) {
    return QTest::qWaitFor([this, times] { return opened.size() >= times; });
  }
  static QList<ADTokenCacheItem> items() { return ADTokenCache::defaultCache().allItems().items; }

  sandbox::HttpServer server;
  std::unique_ptr<sandbox::Authority> authority;
  std::unique_ptr<ADAuthenticationContext> context;
  QNetworkAccessManager browser;
  OutsideStorage storage;
  QList<QUrl> opened;
  QStringList logged;
};
