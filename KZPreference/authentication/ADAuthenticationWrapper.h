#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <vector>

#include "adal/ADAuthenticationResult.h"
#include "host/KZFoundation/Dictionary.h"

class ADAuthenticationContext;
class ExchangeResolveResultReceiving;
class PreferenceActionDelegateProtocol;

// Gets tokens for an online Exchange account: by signing the user in, or by redeeming a stored refresh token.
// Main thread only. Destroying it gives up whatever is under way.
class ADAuthenticationWrapper final {
 public:
  // Not owned; told of credentials and of refreshed tokens.
  explicit ADAuthenticationWrapper(PreferenceActionDelegateProtocol* actionDelegate);
  ~ADAuthenticationWrapper();
  Q_DISABLE_COPY_MOVE(ADAuthenticationWrapper)

  // Not owned; told when a sign-in fails. Nothing: nobody is told.
  void setExchangeResolveResultReceiver(ExchangeResolveResultReceiving* receiver);

  // Keys: authority, resource, clientId, redirectUri, email; for a refresh also refreshToken. Without any, or
  // with an authority that cannot be used, nothing happens and nobody is told.
  void startWithParams(const Dictionary& params);
  // The answer repeats the extra info.
  void refreshTokenWithParams(const Dictionary& params, const Dictionary& extraInfo);

  // Whether this is reported as a sign-in or as a refresh is decided now, not when the request was made.
  void onTokenAcquired(const ADAuthenticationResult& result);

  Dictionary generateExchResolvingFailedResult(const ADAuthenticationResult& result) const;

 private:
  void onTokenAcquiringSuccessed(const ADAuthenticationResult& result);
  void onTokenAcquiringFailed(const ADAuthenticationResult& result);

  // Null, with a trace, for an authority that cannot be used. Kept until the request is answered.
  ADAuthenticationContext* createContext(const QString& authority, const char* method);
  ADAuthenticationCallback completionFor(const ADAuthenticationContext* context, const char* method);

  PreferenceActionDelegateProtocol* m_prefsActionDelegate;
  ExchangeResolveResultReceiving* m_exchResolvingResultReceiver = nullptr;
  bool m_isRefreshing = false;
  Dictionary m_extraInfo;

  QObject m_home;  // where completions arrive
  std::vector<std::unique_ptr<ADAuthenticationContext>> m_contexts;
};
