#include "KZPreference/authentication/OLAccountAuthenticator.h"
#include "host/KZFoundation/KZConstants.h"
#include "tests/exchange/DiscoveryFixture.h"

namespace {

// The fields of a group that collects a credential.
struct CredentialFields final : OutlookAccountAuthDelegate {
  QString username() const override { return name; }
  QString password() const override { return secret; }
  void onAuthFailure(const Dictionary& /*result*/) override { ++failures; }

  QString name = QStringLiteral("CORP\\onprem");
  QString secret = QStringLiteral("correct horse");
  int failures = 0;
};

// The discovery against the plug-in's own authenticator.
class AuthenticatorTest : public DiscoveryFixture {
 protected:
  AuthenticatorTest() {
    answerNoChallenge();
    authenticator.setAuthDelegate(&fields);
  }

  void detectAndApply() {
    detect("onprem@corp.sandbox.example");
    ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
    sinkPassword();
  }

  CredentialFields fields;
  OLAccountAuthenticator authenticator{nullptr};
};

TEST_F(AuthenticatorTest, GivesWhatStandsInTheFields) {
  detectAndApply();
  EXPECT_EQ(textValue(waitForExchange(), kKZCalendarIntegrationExchangeUsername), fields.name);
  EXPECT_EQ(fields.failures, 0);
}

TEST_F(AuthenticatorTest, HearsOfARefusalOnceAndGivesNothingMore) {
  fields.secret = "wrong";
  detectAndApply();
  ASSERT_TRUE(QTest::qWaitFor([this] { return fields.failures > 0; }));
  expectNothingMore();
  EXPECT_EQ(fields.failures, 1);
  EXPECT_EQ(authorizedVisits().size(), 1);
}

TEST_F(AuthenticatorTest, TheGroupThatGoesLeavesNoCredential) {
  detect("onprem@corp.sandbox.example");
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  authenticator.setAuthDelegate(nullptr);
  sinkPassword();
  EXPECT_TRUE(waitForMessage().contains("enter them"));
  EXPECT_TRUE(authorizedVisits().isEmpty());
}

}  // namespace
