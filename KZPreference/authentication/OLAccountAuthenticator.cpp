#include "KZPreference/authentication/OLAccountAuthenticator.h"

#include <QTimer>
#include <chrono>

#include "KZPreference/authentication/MainThreadInvoker.h"
#include "KZPreference/contract/PreferenceActionDelegateProtocol.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZTrace.h"

namespace {

const QString kRequiredNotification = QStringLiteral("HTTPAuthenticationRequired");
const QString kDatasourceNotification = QStringLiteral("HTTPAuthenticationDatasource");

// Lets the group show the failure, and the empty credential be posted, before the host gets the command.
constexpr std::chrono::milliseconds kFailureDelay{100};

enum class AuthRequiring { Discovery = 1, MeetingListing = 2 };

bool isRequiring(const KZNotification& notification, AuthRequiring kind) {
  if (notification.name != kRequiredNotification) return false;
  return notification.userInfo.value(QStringLiteral("AuthRequiringType")).toInt() == static_cast<int>(kind);
}

}  // namespace

OLAccountAuthenticator::OLAccountAuthenticator(PreferenceActionDelegateProtocol* prefsDelegate)
    : m_prefsDelegate(prefsDelegate), m_mainThread(std::make_shared<MainThreadInvoker>()) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "delegate:%@", prefsDelegate);
  m_registration = KZNotificationCenter::defaultCenter().addObserver(
      kRequiredNotification, [this, mainThread = m_mainThread](const KZNotification& notification) {
        MVRNSInfoFuncTraceIMPL("KZPreference", "OLAccountAuthenticator::onAuthenticationRequired", "");
        mainThread->invoke([this, notification] { requireCredential(notification); });
      });
}

OLAccountAuthenticator::~OLAccountAuthenticator() {
  m_mainThread->close();
}

void OLAccountAuthenticator::setAuthDelegate(OutlookAccountAuthDelegate* delegate) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "delegate:%@", delegate);
  m_authDelegate = delegate;
}

void OLAccountAuthenticator::requireCredential(const KZNotification& notification) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "");
  if (isExchDiscoverAuthRequiring(notification)) return authorizeExchDiscovering(notification);
  if (isExchListmeetingAuthRequiring(notification)) authorizeExchMeetingListing(notification);
}

bool OLAccountAuthenticator::isExchDiscoverAuthRequiring(const KZNotification& notification) {
  return isRequiring(notification, AuthRequiring::Discovery);
}

bool OLAccountAuthenticator::isExchListmeetingAuthRequiring(const KZNotification& notification) {
  return isRequiring(notification, AuthRequiring::MeetingListing);
}

bool OLAccountAuthenticator::isAuthFailureNotified(const KZNotification& notification) {
  return textValue(notification.userInfo, QStringLiteral("ShowWarningMsg")) == QLatin1String("true");
}

void OLAccountAuthenticator::authorizeExchDiscovering(const KZNotification& notification) {
  const QString none = QStringLiteral("");
  if (isAuthFailureNotified(notification)) {
    if (m_authDelegate) m_authDelegate->onAuthFailure({});
    QTimer::singleShot(kFailureDelay, &m_delayed, [this] { doNotifyExchDiscoverAuthFailure(); });
    return sendAuthUsername(none, none);
  }
  if (!m_authDelegate) return sendAuthUsername(none, none);
  const QString username = m_authDelegate->username();
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "username:%@ from auth delegate", username);
  sendAuthUsername(username, m_authDelegate->password());
}

void OLAccountAuthenticator::doNotifyExchDiscoverAuthFailure() {
  if (m_prefsDelegate) m_prefsDelegate->notifyExchDiscoverAuthFailure();
}

void OLAccountAuthenticator::authorizeExchMeetingListing(const KZNotification& notification) {
  QString username;
  QString password;
  KZKeyChainHandle::sharedInstance().getOutlookUsername(&username, &password);
  const bool isFound = !username.isEmpty() && !password.isEmpty();
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "username:%@ from keychain, isGotCredFromKeyChain:%d",
                         username.isNull() ? QStringLiteral("") : username, isFound);
  if (isFound && !isAuthFailureNotified(notification)) return sendAuthUsername(username, password);

  MVRNSErrorFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "list meeting auth error");
  if (m_prefsDelegate) m_prefsDelegate->notifyListExchMeetingAuthFailure();
  sendAuthUsername(QStringLiteral(""), QStringLiteral(""));
}

void OLAccountAuthenticator::sendAuthUsername(const QString& username, const QString& password) {
  MVRNSInfoFuncTraceIMPL("KZPreference", Q_FUNC_INFO, "username:%@", username);
  KZNotificationCenter::defaultCenter().post({.name = kDatasourceNotification,
                                              .object = this,
                                              .userInfo = {{QStringLiteral("Username"), username},
                                                           {QStringLiteral("Password"), password},
                                                           {QStringLiteral("Remember"), QStringLiteral("1")},
                                                           {QStringLiteral("isExchAutodiscovering"), true}}});
}
