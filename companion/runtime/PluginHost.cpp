#include "companion/runtime/PluginHost.h"

#include <QFileInfo>

namespace {

// Which plug-in of the host an event belongs to; this host has one.
constexpr quint32 kPreferencePluginIndex = 1;

}  // namespace

PluginHost::~PluginHost() {
  shutDown();
}

bool PluginHost::load(const QString& path) {
  m_loader.setFileName(QFileInfo(path).absoluteFilePath());
  // Every symbol now: a plug-in of another version is refused here and not in the middle of a click.
  m_loader.setLoadHints(m_loader.loadHints() | QLibrary::ResolveAllSymbolsHint);
  QObject* root = m_loader.instance();
  if (!root) {
    m_errorText = QStringLiteral("%1 cannot be loaded: %2").arg(path, m_loader.errorString());
    return false;
  }
  m_factory = qobject_cast<KZPluginFactory*>(root);
  if (!m_factory) {
    m_errorText = QStringLiteral("%1 is a plug-in, but not of this host").arg(path);
    return false;
  }
  m_tokenLookup = qobject_cast<KZTokenLookup*>(root);
  m_core = m_factory->core();
  m_delegateNameIdx = kPreferencePluginIndex;
  m_core->setDelegate(this);
  return true;
}

void PluginHost::triggerCommand(quint64 number, const Content& content) {
  m_core->onHandleOtherPluginsTriggerCommand(number, content);
}

void PluginHost::notify(quint32 index, const Content& content) {
  m_core->onHandleServicesNotification(KZEventIdentify::monitorwith(kPreferencePluginIndex, index), content);
}

void PluginHost::shutDown() {
  if (!m_core) return;
  m_core->setDelegate(nullptr);
  m_core = nullptr;
  m_tokenLookup = nullptr;
  m_factory->shutDown();
}

quint64 PluginHost::sendPluginCommand(const KZEventIdentify& event, const Content& content) {
  if (m_handler) m_handler(event.m_componentEventIndex, content);
  return 0;
}
