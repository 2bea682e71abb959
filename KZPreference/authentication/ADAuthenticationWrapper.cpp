#include "KZPreference/authentication/ADAuthenticationWrapper.h"

#include <QPointer>
#include <QUrl>
#include <atomic>
#include <utility>

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
    : m_prefsActionDelegate(actionDelegate) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "actionDelegate:%@", actionDelegate);
  ADAuthenticationSettings::sharedInstance().setBrowserOpener(
      [](const QUrl& address) { return KZWorkspace::sharedWorkspace().openURL(address); });
}

ADAuthenticationWrapper::~ADAuthenticationWrapper() = default;

void ADAuthenticationWrapper::setExchangeResolveResultReceiver(ExchangeResolveResultReceiving* receiver) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "receiver:%@", receiver);
  m_exchResolvingResultReceiver = receiver;
}

void ADAuthenticationWrapper::startWithParams(const Dictionary& params) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "params:%@", params);
  if (params.isEmpty()) return;
  const TokenParameters wanted(params);
  ADAuthenticationContext* const context = createContext(wanted.authority, Q_FUNC_INFO);
  if (context == nullptr) return;
  context->acquireTokenWithResource(
      wanted.resource, wanted.clientId, wanted.redirectUri, ADPromptBehavior::Always,
      ADUserIdentifier::identifierWithId(wanted.email, ADUserIdentifier::Type::OptionalDisplayableId),
      QString(), QString(), completionFor(context, Q_FUNC_INFO));
}

void ADAuthenticationWrapper::refreshTokenWithParams(const Dictionary& params, const Dictionary& extraInfo) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "params:%@, extraInfo:%@", params, extraInfo);
  m_isRefreshing = true;
  m_extraInfo = extraInfo;
  const TokenParameters wanted(params);
  // Without a context the refresh stays outstanding, and the next result is reported as its own.
  ADAuthenticationContext* const context = createContext(wanted.authority, Q_FUNC_INFO);
  if (context == nullptr) return;
  context->acquireTokenWithRefreshToken(wanted.refreshToken, wanted.resource, wanted.clientId,
                                        wanted.redirectUri, completionFor(context, Q_FUNC_INFO));
}

ADAuthenticationContext* ADAuthenticationWrapper::createContext(const QString& authority,
                                                                const char* method) {
  ADError error;
  std::unique_ptr<ADAuthenticationContext> context =
      ADAuthenticationContext::initWithAuthority(authority, ADAuthorityValidation::Off, error);
  if (!context) {
    MVRNSErrorFuncTraceIMPL("KZPreference", method, "Failed to create AuthenticationContext:%@",
                            error.text());
    return nullptr;
  }
  m_contexts.push_back(std::move(context));
  return m_contexts.back().get();
}

ADAuthenticationCallback ADAuthenticationWrapper::completionFor(const ADAuthenticationContext* context,
                                                                const char* method) {
  return oneShotCompletion(&m_receiver, method, [this, context](const ADAuthenticationResult& result) {
    std::erase_if(m_contexts, [context](const auto& kept) { return kept.get() == context; });
    onTokenAcquired(result);
  });
}

ADAuthenticationCallback ADAuthenticationWrapper::oneShotCompletion(QObject* receiver, const char* method,
                                                                    ADAuthenticationCallback deliver) {
  const auto fBlockHit = std::make_shared<std::atomic_bool>(false);
  return [fBlockHit, method, receiver = QPointer(receiver),
          deliver = std::move(deliver)](const ADAuthenticationResult& result) {
    if (fBlockHit->exchange(true)) {
      MVRNSErrorFuncTraceIMPL("KZPreference", method, "fBlockHit is YES");
      return;
    }
    if (receiver == nullptr) return;
    QMetaObject::invokeMethod(
        receiver, [deliver, result] { deliver(result); }, Qt::QueuedConnection);
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

void ADAuthenticationWrapper::onTokenAcquiringSuccessed(const ADAuthenticationResult& result) {
  if (!result.tokenCacheItem) {
    MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "cacheItem is nil");
    return;
  }
  const ADTokenCacheItem& item = *result.tokenCacheItem;
  if (m_isRefreshing) {
    Dictionary answer = m_extraInfo;
    answer.insert(QRT_ListingMeeting_exchOnlineToken, item.accessToken);
    answer.insert(QStringLiteral("isTokenExpired"), false);
    m_prefsActionDelegate->notifyExchOnlineTokenGot(answer);
  } else {
    m_prefsActionDelegate->sinkOutlookAccountCredential(
        {{QRT_CredentialType, QRT_CredentialTypeOAuthToken},
         {QRT_CredentialUsername, item.userInformation.userId},
         {QRT_CredentialContent, item.accessToken}});
  }
  m_isRefreshing = false;
}

void ADAuthenticationWrapper::onTokenAcquiringFailed(const ADAuthenticationResult& result) {
  MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "status:%d, error:%@", static_cast<int>(result.status),
                          result.error ? result.error->text() : QString());
  if (m_isRefreshing) {
    Dictionary answer = m_extraInfo;
    answer.insert(QStringLiteral("GetTokenFailed"), true);
    m_prefsActionDelegate->notifyExchOnlineTokenGot(answer);
  } else if (m_exchResolvingResultReceiver != nullptr) {
    m_exchResolvingResultReceiver->onExchangeResolveDone(generateExchResolvingFailedResult(result));
  }
  m_isRefreshing = false;
}

Dictionary ADAuthenticationWrapper::generateExchResolvingFailedResult(
    const ADAuthenticationResult& result) const {
  if (result.status == ADAuthenticationStatus::Succeeded) return {};
  return {{kKZResult, kKZFail},
          {kKZErrorHandleData, Dictionary{{kKZErrorMessage, localizedString("Applied failed")}}}};
}
