#include "KZPreference/core/KZPreferenceCore.h"

#include "KZPreference/core/KZPreference.h"
#include "host/KZUtility/KZTrace.h"

namespace {

// A plain pointer, because a static object would be destroyed after the application object when a host does
// not call shutDown.
KZPreferenceCore* m_pKZPreferenceCore = nullptr;

}  // namespace

KZPreferenceCore& KZPreferenceCore::sharedInstance() {
  if (!m_pKZPreferenceCore) m_pKZPreferenceCore = new KZPreferenceCore;
  return *m_pKZPreferenceCore;
}

void KZPreferenceCore::shutDown() {
  delete m_pKZPreferenceCore;
  m_pKZPreferenceCore = nullptr;
}

KZPreferenceCore::KZPreferenceCore() : mPMRJoinUrl(QLatin1String("")), mPMRSipUrl(QLatin1String("")) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_pluginMgr = std::make_unique<KZPreference>(this);
}

KZPreferenceCore::~KZPreferenceCore() {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  m_pluginMgr.reset();
}

quint64 KZPreferenceCore::sendPluginCommand(quint64 command, const Content& content) {
  if (!m_delegate) return 0;
  return m_delegate->sendPluginCommand(KZEventIdentify::monitorwith(m_delegate->m_delegateNameIdx, command),
                                       content);
}

quint64 KZPreferenceCore::onHandleServicesNotification(const KZEventIdentify& event, const Content& content) {
  return m_pluginMgr ? m_pluginMgr->onHandleServicesNotification(event, content) : 0;
}

void KZPreferenceCore::setPMRJoinUrl(const QString& joinUrl, const QString& sipUrl) {
  if (!joinUrl.isNull()) mPMRJoinUrl = joinUrl;
  if (!sipUrl.isNull()) mPMRSipUrl = sipUrl;
}
