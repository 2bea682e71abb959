#include "companion/exchange/CredentialChallenge.h"

#include "host/KZFoundation/KZNotificationCenter.h"

namespace {

KZNotification challengeFor(CredentialPurpose purpose) {
  return {.name = QStringLiteral("HTTPAuthenticationRequired"),
          .object = nullptr,
          .userInfo = {{QStringLiteral("AuthRequiringType"), static_cast<int>(purpose)}}};
}

}  // namespace

OfferedCredential askForCredential(CredentialPurpose purpose) {
  OfferedCredential offered;
  auto& center = KZNotificationCenter::defaultCenter();
  const auto token = center.addObserver(QStringLiteral("HTTPAuthenticationDatasource"),
                                        [&offered](const KZNotification& answer) {
                                          offered = {textValue(answer.userInfo, QStringLiteral("Username")),
                                                     textValue(answer.userInfo, QStringLiteral("Password"))};
                                        });
  center.post(challengeFor(purpose));
  return offered;
}

void reportRefusedCredential(CredentialPurpose purpose) {
  KZNotification challenge = challengeFor(purpose);
  challenge.userInfo.insert(QStringLiteral("ShowWarningMsg"), QStringLiteral("true"));
  KZNotificationCenter::defaultCenter().post(challenge);
}

QByteArray basicAuthorization(const OfferedCredential& credential) {
  // The first colon ends the user name, so a name with a colon would lose its end to the password.
  if (credential.username.contains(QLatin1Char(':'))) return {};
  return "Basic " + (credential.username + QLatin1Char(':') + credential.password).toUtf8().toBase64();
}
