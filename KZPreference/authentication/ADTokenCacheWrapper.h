#pragma once

#include <QRecursiveMutex>
#include <QString>

#include "host/KZFoundation/Dictionary.h"

class ADTokenRefreshDelegate;
struct ADTokenCacheItem;

// Looks up one user's tokens in the default token cache. Any thread.
class ADTokenCacheWrapper final {
 public:
  static ADTokenCacheWrapper& sharedInstance();
  Q_DISABLE_COPY_MOVE(ADTokenCacheWrapper)

  // Not owned. Never called.
  void setRefreshTokenDelegate(ADTokenRefreshDelegate* delegate);

  // The user's access token, whether it must be refreshed, and if so the parameters for that. Ignores letter
  // case. Empty unless the cache has both an access token and a refresh token of the user.
  Dictionary getAccessTokenByEmail(const QString& email, const QString& username);

  Dictionary getTokenFromAccessTokenCache(const ADTokenCacheItem& accessTokenItem,
                                          const ADTokenCacheItem& refreshTokenItem) const;

 private:
  ADTokenCacheWrapper() = default;
  ~ADTokenCacheWrapper() = default;

  QRecursiveMutex m_monitor;
  ADTokenRefreshDelegate* m_refreshTokenDelegate = nullptr;
};
