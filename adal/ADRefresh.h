#pragma once

#include <QObject>
#include <QString>
#include <optional>

#include "adal/ADAuthenticationResult.h"
#include "adal/ADEndpoints.h"
#include "adal/ADRequest.h"
#include "adal/ADTokenAnswer.h"
#include "adal/ADWebClient.h"

// Redeems one refresh token. Destroying it cancels the request without calling the completion. A failure
// leaves the stored tokens unchanged.
class ADRefresh final : public QObject {
 public:
  ADRefresh(const ADRefreshRequest& request, ADAuthenticationCallback completion);

  void start();
  bool isFinished() const { return !m_completion; }

 private:
  void redeem(const QString& refreshToken);
  void onAnswer(const ADTokenAnswerOrError& answer);
  void store(const ADTokenAnswer& answer);
  std::optional<ADTokenCacheItem> successor() const;
  void finish(const ADAuthenticationResult& result);

  const ADRefreshRequest m_request;
  ADAuthenticationCallback m_completion;
  ADWebClient m_web;
  ADEndpoints m_endpoints;
  std::optional<ADTokenCacheItem> m_holder;  // the stored item whose refresh token is being redeemed
  bool m_namesScopes = true;
  bool m_hasTriedSuccessor = false;
};
