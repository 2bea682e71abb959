#include "companion/exchange/CredentialChallenge.h"

#include "host/KZFoundation/KZNotificationCenter.h"

namespace {

KZNotification challengeFor(CredentialPurpose purpose) {
  return {.name = QStringLiteral("HTTPAuthenticationRequired"),
          .object = nullptr,
          .userInfo = {{QStringLiteral("AuthRequiringType"), static_cast<int>(purpose)}}};
}

}  // namespace

Authorization askForCredential(CredentialPurpose purpose) {
  QString username;
  QString password;
  auto& center = KZNotificationCenter::defaultCenter();
  const auto token =
      center.addObserver(QStringLiteral("HTTPAuthenticationDatasource"), [&](const KZNotification& answer) {
        username = textValue(answer.userInfo, QStringLiteral("Username"));
        password = textValue(answer.userInfo, QStringLiteral("Password"));
      });
  center.post(challengeFor(purpose));
  if (username.isEmpty() || password.isEmpty()) return {.missing = FailureKind::NoCredential};
  // The first colon ends the user name, so a name with a colon would lose its end to the password.
  if (username.contains(QLatin1Char(':'))) return {.missing = FailureKind::BadUsername};
  return {.header = "Basic " + (username + QLatin1Char(':') + password).toUtf8().toBase64(),
          .username = username};
}

void reportRefusedCredential(CredentialPurpose purpose) {
  KZNotification challenge = challengeFor(purpose);
  challenge.userInfo.insert(QStringLiteral("ShowWarningMsg"), QStringLiteral("true"));
  KZNotificationCenter::defaultCenter().post(challenge);
}
