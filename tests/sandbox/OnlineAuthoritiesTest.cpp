#include "sandbox/OnlineAuthorities.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrlQuery>

#include "sandbox/OnlineCases.h"
#include "tests/sandbox/Visitor.h"

namespace {

// How far a user gets who signs in and comes back when the token is used up.
enum class Reached { Refusal, Silence, ServerError, NoJson, Token, TokenWithoutEnd, OneToken };

struct SignInCase {
  const char* domain;
  Reached reached;
};

// A proof of possession: the challenge is the verifier's hash.
constexpr char verifier[] = "dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk";
constexpr char challenge[] = "E9Melhoa2OwvFrEMTJguCHaoeK1t8URWbuGJSstw-cM";

class OnlineAuthoritiesTest : public testing::TestWithParam<SignInCase> {
 protected:
  OnlineAuthoritiesTest() {
    EXPECT_TRUE(server.listen());
    visitor.patience = std::chrono::milliseconds(GetParam().reached == Reached::Silence ? 500 : 10'000);
    for (const QJsonValue& one : sandbox::describeOnlineCases(server.url().toString())) {
      const bool isOurs = one["hostSuffixes"].toArray().contains(GetParam().domain);
      if (isOurs) authority = one["authority"].toString();
    }
  }

  // The code of whoever is signed in; empty for whoever is refused.
  QString signIn() {
    const QUrlQuery question{{"response_type", "code"},
                             {"client_id", "client"},
                             {"redirect_uri", "http://127.0.0.1:1/x"},
                             {"state", "s"},
                             {"code_challenge_method", "S256"},
                             {"code_challenge", challenge}};
    const Visitor::Answer page = visitor.get(QUrl(authority + "/oauth2/authorize?" + question.toString()));
    const QUrlQuery redirect(QUrl(page.location).query());
    EXPECT_EQ(redirect.queryItemValue("state"), "s");
    return redirect.queryItemValue("code");
  }

  Visitor::Answer redeem(const QUrlQuery& form) {
    return visitor.post(QUrl(authority + "/oauth2/token"), form.toString(QUrl::FullyEncoded).toLatin1());
  }

  Visitor::Answer redeemCode(const QString& code) {
    return redeem({{"grant_type", "authorization_code"},
                   {"client_id", "client"},
                   {"code", code},
                   {"redirect_uri", "http://127.0.0.1:1/x"},
                   {"code_verifier", verifier}});
  }

  void expectTokens(const QJsonObject& answer) {
    const bool hasEnd = answer.contains("expires_in");
    EXPECT_EQ(hasEnd, GetParam().reached != Reached::TokenWithoutEnd);
    EXPECT_TRUE(authorities.isGranted(answer.value("access_token").toString()));
    const QString refreshToken = answer.value("refresh_token").toString();
    const Visitor::Answer next =
        redeem({{"grant_type", "refresh_token"}, {"client_id", "client"}, {"refresh_token", refreshToken}});
    EXPECT_EQ(next.status, GetParam().reached == Reached::OneToken ? 400 : 200);
  }

  sandbox::HttpServer server;
  sandbox::OnlineAuthorities authorities{server, {.consent = sandbox::Authority::Consent::Give}};
  Visitor visitor;
  QString authority;
};

TEST_P(OnlineAuthoritiesTest, LetsAUserGetSoFar) {
  ASSERT_FALSE(authority.isEmpty());
  const QString code = signIn();
  ASSERT_EQ(code.isEmpty(), GetParam().reached == Reached::Refusal);
  if (code.isEmpty()) return;
  const Visitor::Answer answer = redeemCode(code);
  switch (GetParam().reached) {
    case Reached::Silence:
      EXPECT_EQ(answer.error, QNetworkReply::TimeoutError);
      return;
    case Reached::ServerError:
      EXPECT_EQ(answer.status, 500);
      return;
    case Reached::NoJson:
      EXPECT_EQ(answer.status, 200);
      EXPECT_TRUE(QJsonDocument::fromJson(answer.body).isNull());
      return;
    default:
      ASSERT_EQ(answer.status, 200);
      expectTokens(QJsonDocument::fromJson(answer.body).object());
  }
}

INSTANTIATE_TEST_SUITE_P(Domains, OnlineAuthoritiesTest,
                         testing::Values(SignInCase{"online.sandbox.example", Reached::Token},
                                         SignInCase{"late.sandbox.example", Reached::Token},
                                         SignInCase{"brief.sandbox.example", Reached::OneToken},
                                         SignInCase{"refused.sandbox.example", Reached::Refusal},
                                         SignInCase{"mute.sandbox.example", Reached::Silence},
                                         SignInCase{"trouble.sandbox.example", Reached::ServerError},
                                         SignInCase{"page.sandbox.example", Reached::NoJson},
                                         SignInCase{"endless.sandbox.example", Reached::TokenWithoutEnd}),
                         [](const auto& test) {
                           return QString(test.param.domain).section('.', 0, 0).toStdString();
                         });

}  // namespace
