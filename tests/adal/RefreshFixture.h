#pragma once

#include <memory>

#include "tests/adal/SignInFixture.h"
#include "tests/kit/TokenProvider.h"

// A provider, a context for it, and a cache with a valid access token and a refresh token of one user.
class RefreshFixture : public SignInFixture {
 protected:
  RefreshFixture() : refreshToken(provider.grant(user)) {
    context = contextFor(provider.authority());
    store({accessItem(user, provider.authority()), held(refreshToken)});
  }

  static std::unique_ptr<ADAuthenticationContext> contextFor(const QString& authority) {
    ADError error;
    return ADAuthenticationContext::initWithAuthority(authority, ADAuthorityValidation::Off, error);
  }

  void store(const QList<ADTokenCacheItem>& wanted) {
    EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems(wanted));
    storage.writes.clear();
  }
  // The user's item with that refresh token.
  ADTokenCacheItem held(const QString& token) const { return refreshItem(user, provider.authority(), token); }
  bool waitForRequests(qsizetype count) {
    return QTest::qWaitFor([&] { return provider.requests().size() >= count; });
  }

  TokenProvider provider;
  const QString user = QStringLiteral("Alice@Example.com");
  QString refreshToken;
};
