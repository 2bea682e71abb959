#pragma once

#include "host/KZFoundation/KZPluginCoreMgr.h"

// The plug-in's core: creates the principal object, passes the host's calls to it, and sends the plug-in's
// commands to the host. Main thread only.
class KZPreferenceCore final : public KZPluginCoreMgr {
 public:
  static KZPreferenceCore& sharedInstance();
  // Destroys the singleton and the plug-in's other objects. Call before the application object is destroyed.
  static void shutDown();

  ~KZPreferenceCore() override;

  quint64 sendPluginCommand(quint64 command, const Content& content) override;
  quint64 onHandleServicesNotification(const KZEventIdentify& event, const Content& content) override;

  void setPMRJoinUrl(const QString& joinUrl, const QString& sipUrl) override;
  const QString& pmrJoinUrl() const override { return mPMRJoinUrl; }
  const QString& pmrSipUrl() const override { return mPMRSipUrl; }

 private:
  KZPreferenceCore();

  QString mPMRJoinUrl;
  QString mPMRSipUrl;
};
