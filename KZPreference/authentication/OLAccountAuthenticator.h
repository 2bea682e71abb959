#pragma once

#include <QObject>
#include <memory>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZNotificationCenter.h"

class MainThreadInvoker;
class PreferenceActionDelegateProtocol;

// A view in which the user types an Exchange credential. Main thread only.
class OutlookAccountAuthDelegate {
 public:
  virtual ~OutlookAccountAuthDelegate() = default;

  // The texts that the user has typed so far.
  virtual QString username() const = 0;
  virtual QString password() const = 0;
  // The server refused the last credential.
  virtual void onAuthFailure(const Dictionary& result) = 0;
};

// Responds to the Exchange client's credential challenges: during discovery with the auth delegate's
// credential, while meetings are listed with the keychain's. A refused credential is reported and never sent
// again. Challenges may be posted on any thread, and the response is posted before the post returns.
// Everything else is main thread only.
class OLAccountAuthenticator {
 public:
  explicit OLAccountAuthenticator(PreferenceActionDelegateProtocol* prefsDelegate);  // not owned
  ~OLAccountAuthenticator();
  Q_DISABLE_COPY_MOVE(OLAccountAuthenticator)

  // Not owned; set nullptr before it is destroyed.
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
  QObject m_delayed;  // context of the delayed command, which is cancelled with this object
  std::shared_ptr<MainThreadInvoker> m_mainThread;
  KZNotificationCenter::Token m_registration;
};
