#pragma once

#include <QMutex>
#include <QString>

#include "host/KZFoundation/Dictionary.h"

class ADTokenRefreshDelegate;
struct ADTokenCacheItem;

// How the application is registered with the sign-in authority; for the host.
extern Q_DECL_EXPORT const QString appRegistration_clientId;
extern Q_DECL_EXPORT const QString appRegistration_redirectUri;

// Looks up one user's tokens in the default token cache. Any thread.
class ADTokenCacheWrapper final {
 public:
  static ADTokenCacheWrapper& sharedInstance();
  Q_DISABLE_COPY_MOVE(ADTokenCacheWrapper)

  // Not owned; nobody is told anything yet.
  void setRefreshTokenDelegate(ADTokenRefreshDelegate* delegate);

  // The user's access token, whether it must be refreshed, and if so with what. Letter case does not count.
  // Empty unless both an access token and a refresh token are there.
  Dictionary getAccessTokenByEmail(const QString& email, const QString& username);

  Dictionary getTokenFromAccessTokenCache(const ADTokenCacheItem& accessTokenItem,
                                          const ADTokenCacheItem& refreshTokenItem) const;

 private:
  ADTokenCacheWrapper() = default;
  ~ADTokenCacheWrapper() = default;

  QMutex m_mutex;
  ADTokenRefreshDelegate* m_refreshTokenDelegate = nullptr;
};
