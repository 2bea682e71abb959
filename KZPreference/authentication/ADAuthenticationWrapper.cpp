#include "KZPreference/authentication/ADAuthenticationWrapper.h"

#include <QUrl>
#include <atomic>
#include <utility>

#include "KZPreference/authentication/MainThreadInvoker.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "KZPreference/layout/Resources.h"
#include "adal/ADAuthenticationContext.h"
#include "adal/ADAuthenticationSettings.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZWorkspace.h"

namespace {

struct TokenParameters {
  explicit TokenParameters(const Dictionary& params)
      : authority(textValue(params, QStringLiteral("authority"))),
        resource(textValue(params, QStringLiteral("resource"))),
        clientId(textValue(params, QStringLiteral("clientId"))),
        redirectUri(textValue(params, QStringLiteral("redirectUri"))),
        email(textValue(params, QStringLiteral("email"))),
        refreshToken(textValue(params, QStringLiteral("refreshToken"))) {}

  QString authority;
  QString resource;
  QString clientId;
  QUrl redirectUri;
  QString email;
  QString refreshToken;
};

}  // namespace

ADAuthenticationWrapper::ADAuthenticationWrapper(PreferenceActionDelegateProtocol* actionDelegate)
    : m_prefsActionDelegate(actionDelegate), m_mainThread(std::make_shared<MainThreadInvoker>()) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "actionDelegate:%@", actionDelegate);
  ADAuthenticationSettings::sharedInstance().setBrowserOpener(
      [](const QUrl& address) { return KZWorkspace::sharedWorkspace().openURL(address); });
}

ADAuthenticationWrapper::~ADAuthenticationWrapper() {
  m_mainThread->close();
}

void ADAuthenticationWrapper::setExchangeResolveResultReceiver(ExchangeResolveResultReceiving* receiver) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "receiver:%@", receiver);
  m_exchResolvingResultReceiver = receiver;
}

// Requests

void ADAuthenticationWrapper::startWithParams(const Dictionary& params) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "params:%@", params);
  if (params.isEmpty()) return;
  const TokenParameters wanted(params);
  const Context context = createContext(wanted.authority, Q_FUNC_INFO);
  if (!context) return;
  context->acquireTokenWithResource(
      wanted.resource, wanted.clientId, wanted.redirectUri, ADPromptBehavior::Always,
      ADUserIdentifier::identifierWithId(wanted.email, ADUserIdentifier::Type::OptionalDisplayableId),
      QString(), QString(), completionFor(context, Q_FUNC_INFO));
  // After the new one has joined it, an equal sign-in goes on; any other one ends here.
  m_signIn = context;
}

void ADAuthenticationWrapper::cancelSignIn() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_signIn.reset();
}

bool ADAuthenticationWrapper::refreshTokenWithParams(const Dictionary& params, const Dictionary& extraInfo,
                                                     const ADAuthenticationCallback& ended) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "params:%@, extraInfo:%@", params, extraInfo);
  m_isRefreshing = true;
  m_extraInfo = extraInfo;
  const TokenParameters wanted(params);
  // Without a context the refresh stays outstanding, and the next result is reported as its own.
  const Context context = createContext(wanted.authority, Q_FUNC_INFO);
  if (!context) return false;
  m_refreshes.push_back(context);
  context->acquireTokenWithRefreshToken(wanted.refreshToken, wanted.resource, wanted.clientId,
                                        wanted.redirectUri, completionFor(context, Q_FUNC_INFO, ended));
  return true;
}

ADAuthenticationWrapper::Context ADAuthenticationWrapper::createContext(const QString& authority,
                                                                        const char* method) {
  ADError error;
  Context context = ADAuthenticationContext::initWithAuthority(authority, ADAuthorityValidation::Off, error);
  if (!context) {
    MVRNSErrorFuncTraceIMPL("KZPreference", method, "Failed to create AuthenticationContext:%@",
                            error.text());
  }
  return context;
}

// Results

bool ADAuthenticationWrapper::hasUnreportedResult() const {
  return m_mainThread->hasPosted();
}

ADAuthenticationCallback ADAuthenticationWrapper::completionFor(const Context& context, const char* method,
                                                                const ADAuthenticationCallback& ended) {
  const std::weak_ptr request(context);
  return oneShotCompletion(m_mainThread, method,
                           [this, request, ended](const ADAuthenticationResult& result) {
                             const Context done = request.lock();
                             if (!done) return;  // cancelled after its result was posted
                             if (m_signIn == done) m_signIn.reset();
                             std::erase(m_refreshes, done);
                             if (ended) ended(result);
                             onTokenAcquired(result);
                           });
}

ADAuthenticationCallback ADAuthenticationWrapper::oneShotCompletion(
    const std::shared_ptr<MainThreadInvoker>& mainThread, const char* method,
    ADAuthenticationCallback deliver) {
  const auto fBlockHit = std::make_shared<std::atomic_bool>(false);
  return [fBlockHit, method, mainThread, deliver = std::move(deliver)](const ADAuthenticationResult& result) {
    if (fBlockHit->exchange(true)) {
      MVRNSErrorFuncTraceIMPL("KZPreference", method, "fBlockHit is YES");
      return;
    }
    mainThread->post([deliver, result] { deliver(result); });
  };
}

void ADAuthenticationWrapper::onTokenAcquired(const ADAuthenticationResult& result) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "result.status:%d, m_isRefreshing:%d",
                         static_cast<int>(result.status), m_isRefreshing);
  if (result.status == ADAuthenticationStatus::Succeeded) {
    onTokenAcquiringSuccessed(result);
  } else {
    onTokenAcquiringFailed(result);
  }
}

// Each result is reported last: the receiver may start another request, or destroy this object.

void ADAuthenticationWrapper::onTokenAcquiringSuccessed(const ADAuthenticationResult& result) {
  if (!result.tokenCacheItem) {
    MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "cacheItem is nil");
    return;
  }
  if (std::exchange(m_isRefreshing, false)) {
    m_prefsActionDelegate->notifyExchOnlineTokenGot(refreshAnswer(m_extraInfo, result));
    return;
  }
  const ADTokenCacheItem& item = *result.tokenCacheItem;
  m_prefsActionDelegate->sinkOutlookAccountCredential(
      dictionaryWithPairs({{QRT_CredentialType, QRT_CredentialTypeOAuthToken},
                           {QRT_CredentialUsername, item.userInformation.userId},
                           {QRT_CredentialContent, item.accessToken}}));
}

void ADAuthenticationWrapper::onTokenAcquiringFailed(const ADAuthenticationResult& result) {
  MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "status:%d, error:%@", static_cast<int>(result.status),
                          result.error ? result.error->text() : QString());
  if (std::exchange(m_isRefreshing, false)) {
    m_prefsActionDelegate->notifyExchOnlineTokenGot(refreshAnswer(m_extraInfo, result));
  } else if (m_exchResolvingResultReceiver != nullptr) {
    m_exchResolvingResultReceiver->onExchangeResolveDone(generateExchResolvingFailedResult(result));
  }
}

Dictionary ADAuthenticationWrapper::refreshAnswer(const Dictionary& request,
                                                  const ADAuthenticationResult& result) {
  Dictionary answer = request;
  if (result.tokenCacheItem) {
    answer.insert(
        dictionaryWithPairs({{QRT_ListingMeeting_exchOnlineToken, result.tokenCacheItem->accessToken},
                             {QStringLiteral("isTokenExpired"), false}}));
    return answer;
  }
  const bool isPassing = result.error && canBeTriedLater(result.error->code);
  answer.insert(QStringLiteral("GetTokenFailed"), true);
  answer.insert(QStringLiteral("GetTokenFailedReason"),
                isPassing ? QStringLiteral("TryLater") : QStringLiteral("SignInAgain"));
  return answer;
}

Dictionary ADAuthenticationWrapper::generateExchResolvingFailedResult(
    const ADAuthenticationResult& result) const {
  if (result.status == ADAuthenticationStatus::Succeeded) return {};
  return {{kKZResult, kKZFail},
          {kKZErrorHandleData, Dictionary{{kKZErrorMessage, localizedString("Applied failed")}}}};
}
