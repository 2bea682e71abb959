#include "adal/ADRefresh.h"

#include <QCoreApplication>
#include <QSet>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "adal/ADAddress.h"
#include "adal/ADLogger.h"
#include "adal/ADTokenCache.h"

namespace {

template <typename T>
T& livingForEver() {
  static T* const object = new T;
  return *object;
}

struct RunningRefreshes {
  QList<std::weak_ptr<ADRefresh>> refreshes;  // in the order of their requests
  QList<std::shared_ptr<ADRefresh>> sent;     // those whose token is on its way
  QList<std::function<void()>> heldBack;      // until there are none
};

RunningRefreshes& runningRefreshes() {
  return livingForEver<RunningRefreshes>();
}

// The token endpoints, clients and resources for which scopes were refused in this run.
QSet<QStringList>& refusedScopes() {
  return livingForEver<QSet<QStringList>>();
}

ADError noLongerStored() {
  return {ADErrorCode::InvalidGrant, QStringLiteral("the refresh token is no longer stored")};
}

}  // namespace

std::shared_ptr<ADRefresh> ADRefresh::forRequest(const ADRefreshRequest& request) {
  auto refresh = std::make_shared<ADRefresh>(request);
  for (const std::weak_ptr<ADRefresh>& weak : std::as_const(runningRefreshes().refreshes)) {
    const std::shared_ptr<ADRefresh> running = weak.lock();
    if (running && running->answers(*refresh)) return running;
  }
  runningRefreshes().refreshes.append(refresh);
  goOn();
  return refresh;
}

void ADRefresh::whenNoneIsInProgress(const std::function<void()>& action) {
  runningRefreshes().heldBack.append(action);
  goOnLater();
}

ADRefresh::ADRefresh(const ADRefreshRequest& request) : m_request(request) {
  Q_ASSERT(QThread::currentThread() == QCoreApplication::instance()->thread());
  m_holder =
      stored([&request](const ADTokenCacheItem& item) { return item.refreshToken == request.refreshToken; });
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
    m_web = {};
    runningRefreshes().sent.clear();
  });
}

ADRefresh::~ADRefresh() {
  goOnLater();
}

// Starts those that need not wait, and calls what waits for all of them.
void ADRefresh::goOn() {
  RunningRefreshes& running = runningRefreshes();
  QList<std::shared_ptr<ADRefresh>> refreshes;
  for (const std::weak_ptr<ADRefresh>& weak : std::exchange(running.refreshes, {})) {
    if (const std::shared_ptr<ADRefresh> refresh = weak.lock()) refreshes.append(refresh);
  }
  for (const std::shared_ptr<ADRefresh>& refresh : std::as_const(refreshes))
    running.refreshes.append(refresh);

  for (auto refresh = refreshes.cbegin(); refresh != refreshes.cend(); ++refresh) {
    const bool waits = std::any_of(refreshes.cbegin(), refresh,
                                   [&](const auto& earlier) { return (*refresh)->usesTokenOf(*earlier); });
    if (!waits && !std::exchange((*refresh)->m_hasStarted, true)) (*refresh)->start();
  }
  while (running.refreshes.isEmpty() && !running.heldBack.isEmpty()) running.heldBack.takeFirst()();
}

void ADRefresh::goOnLater() {
  QCoreApplication* const application = QCoreApplication::instance();
  if (application != nullptr) QTimer::singleShot(0, application, &ADRefresh::goOn);
}

bool ADRefresh::answers(const ADRefresh& other) const {
  return !m_isFinished && usesTokenOf(other) && m_request.authority == other.m_request.authority &&
         m_request.resource == other.m_request.resource && m_request.clientId == other.m_request.clientId;
}

bool ADRefresh::usesTokenOf(const ADRefresh& other) const {
  if (m_holder && other.m_holder) return m_holder->isSameEntry(*other.m_holder);
  return m_request.refreshToken == other.m_request.refreshToken;
}

std::optional<ADTokenCacheItem> ADRefresh::stored(
    const std::function<bool(const ADTokenCacheItem&)>& isWanted) {
  const ADTokenCache::Items stored = ADTokenCache::defaultCache().allItems();
  m_cacheFailure = stored.error;
  const auto found = std::find_if(
      stored.items.begin(), stored.items.end(),
      [&](const ADTokenCacheItem& item) { return item.isMultiResourceRefreshToken() && isWanted(item); });
  return found == stored.items.end() ? std::nullopt : std::optional(*found);
}

std::optional<ADTokenCacheItem> ADRefresh::storedHolder() {
  return stored([this](const ADTokenCacheItem& item) { return item.isSameEntry(*m_holder); });
}

void ADRefresh::start() {
  // Without the stored item nobody knows where the token may be sent.
  if (m_cacheFailure) {
    fail(*m_cacheFailure);
    return;
  }
  if (m_holder && (!isSameOrigin(QUrl(m_holder->authority), QUrl(m_request.authority)) ||
                   m_holder->clientId != m_request.clientId)) {
    fail({ADErrorCode::InvalidArgument, QStringLiteral("a refresh token of another authority or client")});
    return;
  }
  findEndpoints(m_web, m_request.authority, [this](const ADEndpointsOrError& found) {
    if (found.error) {
      fail(*found.error);
      return;
    }
    m_endpoints = found.endpoints;
    redeem();
  });
}

void ADRefresh::redeem() {
  if (m_holder) {
    m_holder = storedHolder();
    if (!m_holder) {
      fail(m_cacheFailure.value_or(noLongerStored()));
      return;
    }
  }
  if (!runningRefreshes().sent.contains(shared_from_this()))
    runningRefreshes().sent.append(shared_from_this());
  const QStringList scopesKey{m_endpoints.token.toString(), m_request.clientId, m_request.resource};
  const bool namesScopes = !refusedScopes().contains(scopesKey);
  ADParameters form{{QStringLiteral("grant_type"), QStringLiteral("refresh_token")},
                    {QStringLiteral("refresh_token"), token()},
                    {QStringLiteral("client_id"), m_request.clientId}};
  form += m_endpoints.resourceParameters(m_request.resource);
  if (!namesScopes) form.removeIf([](const auto& field) { return field.first == QLatin1String("scope"); });
  m_web.post(m_endpoints.token, form, [this, namesScopes, scopesKey](const ADWebAnswer& answer) {
    const ADTokenExpectation expected{m_request.clientId, m_endpoints.issuer,
                                      m_holder ? m_holder->userInformation.userId : QString()};
    const ADTokenAnswerOrError granted = tokenAnswer(answer, expected, adNow());
    // An authority that granted fewer scopes than were requested refuses to refresh all of them. Without
    // scopes in the request it refreshes those that it granted.
    if (granted.error && granted.error->code == ADErrorCode::InvalidScope && namesScopes) {
      refusedScopes().insert(scopesKey);
      redeem();
      return;
    }
    onAnswer(granted);
  });
}

void ADRefresh::onAnswer(const ADTokenAnswerOrError& answer) {
  if (!answer.error) {
    finish(store(answer.answer));
    return;
  }
  // Another process may have redeemed this token and stored its successor. The user of a token that is not
  // stored is unknown, and another user's token must not be tried.
  const std::optional<ADTokenCacheItem> stored = m_holder ? storedHolder() : std::nullopt;
  if (answer.error->code == ADErrorCode::InvalidGrant && stored && stored->refreshToken != token() &&
      !std::exchange(m_hasTriedSuccessor, true)) {
    ADLogger::log(ADLogLevel::Warn, QStringLiteral("refresh: trying the newer refresh token that is stored"));
    redeem();
    return;
  }
  fail(*answer.error);
}

ADAuthenticationResult ADRefresh::store(const ADTokenAnswer& answer) const {
  const QString userId = m_holder ? m_holder->userInformation.userId : answer.userId;
  const QList<ADTokenCacheItem> items = itemsForAnswer(answer, {.userId = userId,
                                                                .authority = m_request.authority,
                                                                .resource = m_request.resource,
                                                                .clientId = m_request.clientId});
  const ADTokenCacheItem& access = items.last();
  if (!m_holder) {
    if (!userId.isEmpty()) storeSignedIn(items);
    return ADAuthenticationResult::succeeded(access);
  }
  bool isHeld = false;
  const auto replace = [&](QList<ADTokenCacheItem>& stored) {
    const auto holder = std::find_if(stored.begin(), stored.end(), [this](const ADTokenCacheItem& item) {
      return item.isSameEntry(*m_holder);
    });
    isHeld = holder != stored.end();
    // A sign-in or another process has stored newer tokens.
    if (!isHeld || holder->refreshToken != token()) return false;
    if (!answer.refreshToken.isEmpty()) holder->refreshToken = answer.refreshToken;
    addOrUpdate(stored, access);
    return true;
  };
  const ADTokenCache::Failure failure = ADTokenCache::defaultCache().change(replace);
  if (failure) return ADAuthenticationResult::failed(*failure);
  // The tokens were removed meanwhile, and must not come back.
  if (!isHeld) return ADAuthenticationResult::failed(noLongerStored());
  return ADAuthenticationResult::succeeded(access);
}

void ADRefresh::fail(const ADError& error) {
  finish(ADAuthenticationResult::failed(error));
}

void ADRefresh::finish(const ADAuthenticationResult& result) {
  m_isFinished = true;
  ADLogger::log(
      result.error ? ADLogLevel::Error : ADLogLevel::Info,
      QStringLiteral("refresh: %1").arg(result.error ? result.error->text() : QStringLiteral("succeeded")));
  // From the event loop, so that a completion may destroy the contexts that hold this.
  QTimer::singleShot(0, this, [this, result] {
    const std::shared_ptr<ADRefresh> self = shared_from_this();
    runningRefreshes().refreshes.removeIf([&self](const auto& running) { return running.lock() == self; });
    runningRefreshes().sent.removeAll(self);
    m_completions.call(result);
    goOnLater();
  });
}
