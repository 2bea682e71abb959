#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <vector>

#include "adal/ADAuthenticationResult.h"
#include "host/KZFoundation/Dictionary.h"

class ADAuthenticationContext;
class PreferenceActionDelegateProtocol;

// Receives the result of resolving an Exchange account. Main thread only.
class ExchangeResolveResultReceiving {
 public:
  virtual ~ExchangeResolveResultReceiving() = default;

  virtual void onExchangeResolveDone(const Dictionary& result) = 0;
};

// Gets tokens for an online Exchange account: by signing the user in, or by redeeming a stored refresh token.
// Destroying it cancels its requests. Main thread only.
class ADAuthenticationWrapper final {
 public:
  // Not owned; receives credentials and refreshed tokens.
  explicit ADAuthenticationWrapper(PreferenceActionDelegateProtocol* actionDelegate);
  ~ADAuthenticationWrapper();
  Q_DISABLE_COPY_MOVE(ADAuthenticationWrapper)

  // Not owned; receives failed sign-ins. With nullptr they are dropped.
  void setExchangeResolveResultReceiver(ExchangeResolveResultReceiving* receiver);

  // Keys: authority, resource, clientId, redirectUri, email; for a refresh also refreshToken. Empty
  // parameters, or an authority that cannot be used, start nothing and report nothing.
  void startWithParams(const Dictionary& params);
  // The result contains the extra info.
  void refreshTokenWithParams(const Dictionary& params, const Dictionary& extraInfo);

  // Reports the result as a refresh if one is outstanding, whatever the request was.
  void onTokenAcquired(const ADAuthenticationResult& result);

  Dictionary generateExchResolvingFailedResult(const ADAuthenticationResult& result) const;

  // A callback for any thread. It delivers its first result from the receiver's event loop, or drops it when
  // the receiver is destroyed. It drops all later results with a trace. Copies share this state.
  static ADAuthenticationCallback oneShotCompletion(QObject* receiver, const char* method,
                                                    ADAuthenticationCallback deliver);

 private:
  void onTokenAcquiringSuccessed(const ADAuthenticationResult& result);
  void onTokenAcquiringFailed(const ADAuthenticationResult& result);

  // nullptr, with a trace, for an authority that cannot be used. Kept until its request is complete.
  ADAuthenticationContext* createContext(const QString& authority, const char* method);
  ADAuthenticationCallback completionFor(const ADAuthenticationContext* context, const char* method);

  PreferenceActionDelegateProtocol* m_prefsActionDelegate;
  ExchangeResolveResultReceiving* m_exchResolvingResultReceiver = nullptr;
  bool m_isRefreshing = false;
  Dictionary m_extraInfo;

  QObject m_receiver;  // of completions
  std::vector<std::unique_ptr<ADAuthenticationContext>> m_contexts;
};
