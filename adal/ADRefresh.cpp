#include "adal/ADRefresh.h"

#include <QTimer>
#include <algorithm>
#include <utility>

#include "adal/ADLogger.h"
#include "adal/ADTokenCache.h"

namespace {

std::optional<ADTokenCacheItem> holderOf(const QString& refreshToken) {
  const QList<ADTokenCacheItem> items = ADTokenCache::defaultCache().allItems().items;
  const auto holder = std::find_if(items.begin(), items.end(), [&](const ADTokenCacheItem& item) {
    return item.refreshToken == refreshToken;
  });
  return holder == items.end() ? std::nullopt : std::optional(*holder);
}

bool isOfOneUser(const ADTokenCacheItem& left, const ADTokenCacheItem& right) {
  return left.userInformation.userId.compare(right.userInformation.userId, Qt::CaseInsensitive) == 0;
}

}  // namespace

ADRefresh::ADRefresh(const ADRefreshRequest& request, ADAuthenticationCallback completion)
    : m_request(request), m_completion(std::move(completion)), m_holder(holderOf(request.refreshToken)) {}

void ADRefresh::start() {
  findEndpoints(m_web, m_request.authority, [this](const ADEndpointsOrError& found) {
    if (found.error) {
      finish(ADAuthenticationResult::failed(*found.error));
      return;
    }
    m_endpoints = found.endpoints;
    redeem(m_request.refreshToken);
  });
}

void ADRefresh::redeem(const QString& refreshToken) {
  ADParameters form{{QStringLiteral("grant_type"), QStringLiteral("refresh_token")},
                    {QStringLiteral("refresh_token"), refreshToken},
                    {QStringLiteral("client_id"), m_request.clientId}};
  form += m_endpoints.resourceParameters(m_request.resource);
  if (!m_namesScopes) form.removeIf([](const auto& field) { return field.first == QLatin1String("scope"); });
  m_web.post(m_endpoints.token, form, [this](const ADWebAnswer& answer) {
    onAnswer(tokenAnswer(answer, {m_request.clientId, m_endpoints.issuer}, adNow()));
  });
}

void ADRefresh::onAnswer(const ADTokenAnswerOrError& answer) {
  if (!answer.error) {
    store(answer.answer);
    return;
  }
  // An authority that granted fewer scopes than were requested refuses to refresh all of them. Without scopes
  // in the request it refreshes those that it granted.
  if (answer.error->code == ADErrorCode::InvalidScope && std::exchange(m_namesScopes, false)) {
    redeem(m_holder ? m_holder->refreshToken : m_request.refreshToken);
    return;
  }
  // Another process may have redeemed this token and stored its successor.
  const bool mayRetry =
      answer.error->code == ADErrorCode::InvalidGrant && !std::exchange(m_hasTriedSuccessor, true);
  const std::optional<ADTokenCacheItem> newer = mayRetry ? successor() : std::nullopt;
  if (!newer) {
    finish(ADAuthenticationResult::failed(*answer.error));
    return;
  }
  ADLogger::log(ADLogLevel::Warn,
                QStringLiteral("refresh: trying the newer refresh token of another process"));
  m_holder = newer;
  redeem(newer->refreshToken);
}

std::optional<ADTokenCacheItem> ADRefresh::successor() const {
  // The user of a token that is not in the cache is unknown, and another user's token must not be tried.
  if (!m_holder) return {};
  const QList<ADTokenCacheItem> items = ADTokenCache::defaultCache().allItems().items;
  const auto found = std::find_if(items.begin(), items.end(), [this](const ADTokenCacheItem& item) {
    return !item.refreshToken.isEmpty() && item.refreshToken != m_holder->refreshToken &&
           item.authority == m_holder->authority && item.clientId == m_holder->clientId &&
           isOfOneUser(item, *m_holder);
  });
  return found == items.end() ? std::nullopt : std::optional(*found);
}

void ADRefresh::store(const ADTokenAnswer& answer) {
  const QString userId = m_holder ? m_holder->userInformation.userId : answer.userId;
  QList<ADTokenCacheItem> items = itemsForAnswer(answer, {.userId = userId,
                                                          .authority = m_request.authority,
                                                          .resource = m_request.resource,
                                                          .clientId = m_request.clientId});
  const ADTokenCacheItem access = items.last();
  if (m_holder && m_holder->isMultiResourceRefreshToken() && !answer.refreshToken.isEmpty()) {
    items.first() = *m_holder;
    items.first().refreshToken = answer.refreshToken;
  }
  if (!userId.isEmpty()) storeItems(items);
  ADLogger::log(ADLogLevel::Info,
                answer.refreshToken.isEmpty()
                    ? QStringLiteral("refresh: succeeded")
                    : QStringLiteral("refresh: succeeded and stored the next refresh token"));
  finish(ADAuthenticationResult::succeeded(access));
}

void ADRefresh::finish(const ADAuthenticationResult& result) {
  if (result.error) ADLogger::log(ADLogLevel::Error, QStringLiteral("refresh: %1").arg(result.error->text()));
  // From the event loop, so that the completion may destroy the context that owns this.
  QTimer::singleShot(0, this, [this, result] {
    const ADAuthenticationCallback completion = std::exchange(m_completion, {});
    if (completion) completion(result);
  });
}
