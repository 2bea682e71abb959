#pragma once

#include <QObject>
#include <QString>
#include <functional>
#include <memory>
#include <optional>

#include "adal/ADAuthenticationResult.h"
#include "adal/ADCompletions.h"
#include "adal/ADEndpoints.h"
#include "adal/ADRequest.h"
#include "adal/ADTokenAnswer.h"
#include "adal/ADWebClient.h"

// One redemption of a refresh token, shared by equal requests. A stored token is redeemed once at a time:
// another request for it waits, and then redeems what is stored by then. A token is sent only to the
// authority and as the client that got it. When all of its owners have left before the token is sent, it is
// cancelled; afterwards it still stores the successor, because the token is used up. A failure leaves the
// stored tokens unchanged. Main thread only.
class ADRefresh final : public QObject, public std::enable_shared_from_this<ADRefresh> {
 public:
  // The refresh in progress for an equal request, or a new one.
  static std::shared_ptr<ADRefresh> forRequest(const ADRefreshRequest& request);

  // Calls `action` from the event loop, as soon as no refresh is in progress or has a completion to call.
  static void whenNoneIsInProgress(const std::function<void()>& action);

  explicit ADRefresh(const ADRefreshRequest& request);
  ~ADRefresh() override;

  ADCompletions& completions() { return m_completions; }

 private:
  static void goOn();
  static void goOnLater();

  bool answers(const ADRefresh& other) const;
  bool usesTokenOf(const ADRefresh& other) const;
  std::optional<ADTokenCacheItem> stored(const std::function<bool(const ADTokenCacheItem&)>& isWanted);
  std::optional<ADTokenCacheItem> storedHolder();
  QString token() const { return m_holder ? m_holder->refreshToken : m_request.refreshToken; }
  void start();
  void redeem();
  void onAnswer(const ADTokenAnswerOrError& answer);
  [[nodiscard]] ADAuthenticationResult store(const ADTokenAnswer& answer) const;
  void fail(const ADError& error);
  void finish(const ADAuthenticationResult& result);

  const ADRefreshRequest m_request;
  ADCompletions m_completions;
  ADWebClient m_web;
  ADEndpoints m_endpoints;
  std::optional<ADTokenCacheItem> m_holder;  // the stored item whose refresh token is redeemed
  std::optional<ADError> m_cacheFailure;     // of the last look for a stored item
  bool m_hasStarted = false;
  bool m_isFinished = false;
  bool m_hasTriedSuccessor = false;
};
