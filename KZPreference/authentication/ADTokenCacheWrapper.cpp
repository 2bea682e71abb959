#include "KZPreference/authentication/ADTokenCacheWrapper.h"

#include <mutex>

#include "KZPreference/authentication/ADTokenCacheItem+Mivra.h"
#include "KZPreference/authentication/AppRegistration.h"
#include "adal/ADTokenCache.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"

namespace {

bool isSameUser(const QString& userId, const QString& name) {
  // The lengths are compared first, because that is much cheaper.
  return userId.size() == name.size() && !name.isEmpty() && userId.compare(name, Qt::CaseInsensitive) == 0;
}

}  // namespace

ADTokenCacheWrapper& ADTokenCacheWrapper::sharedInstance() {
  static ADTokenCacheWrapper* const instance = new ADTokenCacheWrapper;
  return *instance;
}

void ADTokenCacheWrapper::setRefreshTokenDelegate(ADTokenRefreshDelegate* delegate) {
  m_refreshTokenDelegate = delegate;
}

Dictionary ADTokenCacheWrapper::getAccessTokenByEmail(const QString& email, const QString& username) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "email:%@, username:%@", email, username);
  const ADTokenCache::Items cached = [this]() -> ADTokenCache::Items {
    const std::unique_lock lock(m_monitor, ADTokenCache::longestWait);
    if (!lock) return {{}, ADError{ADErrorCode::CacheBusy, QStringLiteral("another look-up is not done")}};
    return ADTokenCache::defaultCache().allItems();
  }();
  if (cached.error) {
    MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "error:%@", cached.error->text());
    return {};
  }

  const ADTokenCacheItem* accessTokenItem = nullptr;
  const ADTokenCacheItem* refreshTokenItem = nullptr;
  for (const ADTokenCacheItem& item : cached.items) {
    const QString& userId = item.userInformation.userId;
    if (!isSameUser(userId, email) && !isSameUser(userId, username)) continue;
    (item.isMultiResourceRefreshToken() ? refreshTokenItem : accessTokenItem) = &item;
    if (accessTokenItem != nullptr && refreshTokenItem != nullptr) {
      return getTokenFromAccessTokenCache(*accessTokenItem, *refreshTokenItem);
    }
  }
  return {};
}

Dictionary ADTokenCacheWrapper::getTokenFromAccessTokenCache(const ADTokenCacheItem& accessTokenItem,
                                                             const ADTokenCacheItem& refreshTokenItem) const {
  if (!isExpiredWithPrejudge(accessTokenItem)) {
    return dictionaryWithPairs({{QRT_ListingMeeting_exchOnlineToken, accessTokenItem.accessToken},
                                {QStringLiteral("isTokenExpired"), false}});
  }
  const Dictionary refreshTokenInfo =
      dictionaryWithPairs({{QStringLiteral("authority"), accessTokenItem.authority},
                           {QStringLiteral("resource"), accessTokenItem.resource},
                           {QStringLiteral("clientId"), accessTokenItem.clientId},
                           {QStringLiteral("redirectUri"), appRegistration_redirectUri},
                           {QStringLiteral("email"), accessTokenItem.userInformation.userId},
                           {QStringLiteral("refreshToken"), refreshTokenItem.refreshToken}});
  return dictionaryWithPairs({{QRT_ListingMeeting_exchOnlineToken, accessTokenItem.accessToken},
                              {QStringLiteral("isTokenExpired"), true},
                              {QStringLiteral("refreshTokenInfo"), refreshTokenInfo}});
}
