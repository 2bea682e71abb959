#pragma once

#include <QtPlugin>
#include <memory>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZEventIdentify.h"
#include "host/KZFoundation/KZHostExport.h"
#include "host/KZFoundation/KZPluginMgr.h"

// The host's receiver of the commands that a plug-in sends. Called on the main thread.
class KZ_HOST_EXPORT KZPluginDelegate {
 public:
  KZPluginDelegate();
  virtual ~KZPluginDelegate();
  Q_DISABLE_COPY_MOVE(KZPluginDelegate)

  // `event.m_componentEventIndex` is the command's number.
  virtual quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) = 0;

  quint32 m_delegateNameIdx = 0;  // the plug-in's identity in the host's event numbering
};

// A plug-in's core, to which the host sends commands and notifications. Main thread only.
class KZ_HOST_EXPORT KZPluginCoreMgr {
 public:
  KZPluginCoreMgr();
  virtual ~KZPluginCoreMgr();
  Q_DISABLE_COPY_MOVE(KZPluginCoreMgr)

  // Commands sent before a delegate is set are dropped. The delegate is not owned and must outlive its use
  // here; nullptr detaches.
  void setDelegate(KZPluginDelegate* delegate) { m_delegate = delegate; }

  virtual quint64 sendPluginCommand(quint64 command, const Content& content) = 0;
  virtual quint64 onHandleServicesNotification(const KZEventIdentify& event, const Content& content) = 0;
  quint64 onHandleOtherPluginsTriggerCommand(quint64 command, const Content& content);

  // The personal room's addresses. A null text leaves its address unchanged; nothing is validated.
  virtual void setPMRJoinUrl(const QString& joinUrl, const QString& sipUrl) = 0;
  virtual const QString& pmrJoinUrl() const = 0;  // live: later changes show through the reference
  virtual const QString& pmrSipUrl() const = 0;

 protected:
  std::unique_ptr<KZPluginMgr> m_pluginMgr;
  KZPluginDelegate* m_delegate = nullptr;
};

// A plug-in's root object, which QPluginLoader::instance() returns.
class KZ_HOST_EXPORT KZPluginFactory {
 public:
  KZPluginFactory();
  virtual ~KZPluginFactory();
  Q_DISABLE_COPY_MOVE(KZPluginFactory)

  // The plug-in's only core, created on the first call. Owned by the plug-in.
  virtual KZPluginCoreMgr* core() = 0;

  // Destroys the core with all windows. Call it before the application object is destroyed; pointers to the
  // core are invalid afterwards.
  virtual void shutDown() = 0;
};

Q_DECLARE_INTERFACE(KZPluginFactory, "example.brenn-mivra.KZPluginFactory/1")
