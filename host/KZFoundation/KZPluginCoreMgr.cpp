#include "host/KZFoundation/KZPluginCoreMgr.h"

#include "host/KZFoundation/PreferencesWndController.h"

KZPluginMgr::KZPluginMgr(KZPluginCoreMgr* core) : m_pluginCoreMgr(core) {}
KZPluginMgr::~KZPluginMgr() = default;

KZPluginDelegate::KZPluginDelegate() = default;
KZPluginDelegate::~KZPluginDelegate() = default;

KZPluginFactory::KZPluginFactory() = default;
KZPluginFactory::~KZPluginFactory() = default;

KZPluginCoreMgr::KZPluginCoreMgr() = default;
KZPluginCoreMgr::~KZPluginCoreMgr() = default;

quint64 KZPluginCoreMgr::onHandleOtherPluginsTriggerCommand(quint64 command, const Content& content) {
  return m_pluginMgr ? m_pluginMgr->onHandleOtherPluginsTriggerCommand(command, content) : 0;
}

PreferencesWndController::PreferencesWndController() = default;
PreferencesWndController::~PreferencesWndController() = default;
