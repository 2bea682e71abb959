#pragma once

#include <QString>
#include <memory>
#include <vector>

#include "adal/ADAuthenticationResult.h"
#include "host/KZFoundation/Dictionary.h"

class ADAuthenticationContext;
class MainThreadInvoker;
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
  // parameters, or an authority that cannot be read, start nothing and report nothing.

  // Ends a sign-in in progress, except an equal one, which goes on.
  void startWithParams(const Dictionary& params);
  // Ends a sign-in in progress without a result.
  void cancelSignIn();

  // The answer contains the extra info. Returns false when nothing started; else `ended` is called with the
  // result, just before the answer is sent.
  bool refreshTokenWithParams(const Dictionary& params, const Dictionary& extraInfo,
                              const ADAuthenticationCallback& ended = {});

  // A result has come and is not reported yet. A refresh that begins now would be taken for its request.
  bool hasUnreportedResult() const;

  // Reports the result as a refresh if one is outstanding, whatever the request was.
  void onTokenAcquired(const ADAuthenticationResult& result);

  Dictionary generateExchResolvingFailedResult(const ADAuthenticationResult& result) const;

  // The request with what a refresh adds to it.
  static Dictionary refreshAnswer(const Dictionary& request, const ADAuthenticationResult& result);

  // A callback for any thread. It delivers its first result on the main thread, from the event loop. It drops
  // all later results with a trace. Copies share this state.
  static ADAuthenticationCallback oneShotCompletion(const std::shared_ptr<MainThreadInvoker>& mainThread,
                                                    const char* method, ADAuthenticationCallback deliver);

 private:
  // Shared with nobody: a completion only looks whether its request was cancelled.
  using Context = std::shared_ptr<ADAuthenticationContext>;

  void onTokenAcquiringSuccessed(const ADAuthenticationResult& result);
  void onTokenAcquiringFailed(const ADAuthenticationResult& result);

  // Null, with a trace, for an authority that cannot be read.
  static Context createContext(const QString& authority, const char* method);
  ADAuthenticationCallback completionFor(const Context& context, const char* method,
                                         const ADAuthenticationCallback& ended = {});

  PreferenceActionDelegateProtocol* m_prefsActionDelegate;
  ExchangeResolveResultReceiving* m_exchResolvingResultReceiver = nullptr;
  bool m_isRefreshing = false;
  Dictionary m_extraInfo;

  std::shared_ptr<MainThreadInvoker> m_mainThread;
  Context m_signIn;  // in progress, or null
  std::vector<Context> m_refreshes;
};
