#pragma once

#include "KZPreference/authentication/MainThreadGate.h"
#include "KZPreference/contract/OutlookAccountAuthDelegate.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "host/KZFoundation/KZNotificationCenter.h"

// Answers the Exchange client's credential challenges: from whoever is collecting a credential, or from the
// keychain when meetings are listed. A refused credential is reported and never sent again. Challenges may be
// posted from any thread and are answered before their post returns; all else on the main thread.
class OLAccountAuthenticator {
 public:
  explicit OLAccountAuthenticator(PreferenceActionDelegateProtocol* prefsDelegate);  // not owned
  ~OLAccountAuthenticator();
  Q_DISABLE_COPY_MOVE(OLAccountAuthenticator)

  // Not owned; nullptr when the collector goes.
  void setAuthDelegate(OutlookAccountAuthDelegate* delegate);

 private:
  void requireCredential(const KZNotification& notification);
  static bool isExchDiscoverAuthRequiring(const KZNotification& notification);
  static bool isExchListmeetingAuthRequiring(const KZNotification& notification);
  static bool isAuthFailureNotified(const KZNotification& notification);
  void authorizeExchDiscovering(const KZNotification& notification);
  void authorizeExchMeetingListing(const KZNotification& notification);
  void doNotifyExchDiscoverAuthFailure();
  void sendAuthUsername(const QString& username, const QString& password);

  OutlookAccountAuthDelegate* m_authDelegate = nullptr;
  PreferenceActionDelegateProtocol* m_prefsDelegate;
  QObject m_delayed;  // ends what is scheduled when this object goes
  MainThreadGate m_gate;
  KZNotificationCenter::Token m_registration;
};
