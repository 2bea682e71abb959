#pragma once

#include "host/KZFoundation/KZPluginCoreMgr.h"

// The plug-in's one object that the host addresses first: makes the principal object, relays to it, and
// carries what the plug-in sends. The first use must be on the main thread, as every other.
class KZPreferenceCore final : public KZPluginCoreMgr {
 public:
  static KZPreferenceCore& sharedInstance();
  // Destroys the singleton with everything behind it; before the application object goes.
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
