#include "KZPreference/authentication/ADAuthenticationWrapper.h"
#include "KZPreference/authentication/TokenRequests.h"
#include "KZPreference/core/KZPreference.h"
#include "KZPreference/windows/PreferenceWindowController.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZTrace.h"
#include "host/KZUtility/KZUtility.h"

Dictionary KZPreference::dictionaryFromJson(const QString& text) {
  return KZUtility::JSONValueFromString(text).value<Dictionary>();
}

void KZPreference::onResolveExchangeDone(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  if (m_preferenceWindowController)
    m_preferenceWindowController->onExchangeResolveDone(content.value_or(Dictionary()));
}

void KZPreference::onExchangeResolvingNeedCredential(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  const Dictionary result = content.value_or(Dictionary());
  if (!isEqualText(textValue(result, kKZResult), kKZSuccess)) {
    MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "resolving exchange failed");
    return;
  }
  const QString type = textValue(result, QRT_ExchangeDiscover_ExchangeType);
  if (isEqualText(type, QRT_ExchangeDiscover_ExchangeTypeOnpremise)) {
    if (m_preferenceWindowController) m_preferenceWindowController->onExchangeResolvingNeedCredential(result);
    return;
  }
  m_ADAuthWrapper->startWithParams(
      dictionaryFromJson(textValue(result, QRT_ExchangeDiscover_O365LoginParams)));
}

void KZPreference::onO365LoginRequesting(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "content:%@", content);
  const Dictionary data =
      dictionaryFromJson(textValue(content.value_or(Dictionary()), QStringLiteral("O365LoginData")));
  m_ADAuthWrapper->startWithParams(dictionaryFromJson(textValue(data, QStringLiteral("O365LoginParams"))));
}

void KZPreference::onGetExchonlineToken(const Content& content) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "Content:%@", content);
  m_tokenRequests->request(content);
}
