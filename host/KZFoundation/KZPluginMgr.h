#pragma once

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZEventIdentify.h"
#include "host/KZFoundation/KZHostExport.h"

class KZPluginCoreMgr;

// A plug-in's principal object: receives the host's commands and notifications. Main thread only; always
// returns 0.
class KZ_HOST_EXPORT KZPluginMgr {
 public:
  explicit KZPluginMgr(KZPluginCoreMgr* core);
  virtual ~KZPluginMgr();
  Q_DISABLE_COPY_MOVE(KZPluginMgr)

  virtual quint64 onHandleOtherPluginsTriggerCommand(quint64 command, const Content& content) = 0;
  virtual quint64 onHandleServicesNotification(const KZEventIdentify& event, const Content& content) = 0;

 protected:
  KZPluginCoreMgr* m_pluginCoreMgr;  // owns this object
};
