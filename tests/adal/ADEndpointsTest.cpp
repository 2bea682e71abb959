#include <QJsonObject>
#include <variant>

#include "sandbox/Responses.h"
#include "tests/adal/SignInFixture.h"

using sandbox::HttpRequest;
using sandbox::HttpResponse;

namespace {

class ADEndpointsTest : public SignInFixture {
 protected:
  void answerConfiguration(const HttpResponse& response) {
    server.handle("/common/.well-known/openid-configuration",
                  [this, response](const HttpRequest&) { return ++requests, response; });
  }
  QJsonObject configuration() const {
    return {{"issuer", authority->address()},
            {"authorization_endpoint", authority->address() + "/authorize"},
            {"token_endpoint", authority->address() + "/oauth2/token"}};
  }
  QJsonObject with(const char* key, const QJsonValue& value) const {
    QJsonObject changed = configuration();
    changed.insert(QLatin1String(key), value);
    return changed;
  }
  // The path of the page that a sign-in opens, or the error with which it ends.
  std::variant<QString, ADErrorCode> signInPath() {
    opened.clear();
    Result result;
    signIn(result);
    EXPECT_TRUE(QTest::qWaitFor([&] { return result || !opened.isEmpty(); }));
    ADError error;
    context =
        ADAuthenticationContext::initWithAuthority(authority->address(), ADAuthorityValidation::Off, error);
    if (result) return result->error->code;
    return opened.first().path();
  }

  int requests = 0;
};

TEST_F(ADEndpointsTest, OnlyAMissingConfigurationIsMadeUp) {
  using Code = ADErrorCode;
  const QString own = authority->address();
  sandbox::HttpServer elsewhere;
  ASSERT_TRUE(elsewhere.listen());
  int visitsElsewhere = 0;
  elsewhere.handleOthers(
      [&](const HttpRequest&) { return ++visitsElsewhere, sandbox::jsonResponse(configuration()); });
  server.handle("/moved", [this](const HttpRequest&) { return sandbox::jsonResponse(configuration()); });
  const QString self = own + "/.well-known/openid-configuration";
  const HttpResponse html{.contentType = "text/html", .body = "<p>Log in to this network</p>"};
  struct Case {
    const char* name;
    HttpResponse response;
    std::variant<QString, Code> wanted;
    int requests = 1;
  };
  const Case cases[] = {
      {"own", sandbox::jsonResponse(configuration()), "/common/authorize"},
      {"slash", sandbox::jsonResponse(with("issuer", own + "/")), "/common/authorize"},
      {"missing", sandbox::notFound(), "/common/oauth2/authorize"},
      {"gone", {.status = 410}, "/common/oauth2/authorize"},
      {"moved", sandbox::redirectTo("/moved", 301), "/common/authorize"},
      {"loop", sandbox::redirectTo(self, 302), Code::ServerAnswer, 6},
      {"elsewhere", sandbox::redirectTo(elsewhere.url().toString() + "/", 302), Code::ServerAnswer},
      {"failing", {.status = 503}, Code::Unavailable},
      {"busy", {.status = 429}, Code::Unavailable},
      {"forbidden", {.status = 403}, Code::ServerAnswer},
      {"page", html, Code::ServerAnswer},
      {"no issuer", sandbox::jsonResponse(with("issuer", {})), Code::ServerAnswer},
      {"other issuer", sandbox::jsonResponse(with("issuer", own + "/x")), Code::ServerAnswer},
      {"plain token", sandbox::jsonResponse(with("token_endpoint", "http://login.example.com/t")),
       Code::AddressNotAllowed},
      {"plain page", sandbox::jsonResponse(with("authorization_endpoint", "http://login.example.com/a")),
       Code::AddressNotAllowed},
      {"fragment", sandbox::jsonResponse(with("token_endpoint", own + "/t#x")), Code::AddressNotAllowed},
  };
  for (const Case& wanted : cases) {
    SCOPED_TRACE(wanted.name);
    answerConfiguration(wanted.response);
    requests = 0;
    EXPECT_EQ(signInPath(), wanted.wanted);
    EXPECT_EQ(requests, wanted.requests);
  }
  EXPECT_EQ(visitsElsewhere, 0);
  EXPECT_EQ(logged.filter("has no configuration").size(), 2);
  EXPECT_TRUE(authority->tokenRequests().isEmpty());
}

TEST_F(ADEndpointsTest, WhereTheIssuerIsNotPromisedItIsComparedWhenItIsThere) {
  const std::pair<QString, const char*> cases[] = {
      {"&iss=https%3A%2F%2Fevil.example.com", "400"}, {"&iss=", "400"}, {"", "303"}};
  for (const HttpResponse& response : {sandbox::jsonResponse(configuration()), HttpResponse{.status = 404}}) {
    answerConfiguration(response);
    opened.clear();
    Result result;
    signIn(result);
    ASSERT_TRUE(waitForBrowser());
    const QUrl redirect = redirectOf(opened.first());
    for (const auto& [issuer, status] : cases) {
      const QString target = "/done?code=x&state=" + queryValue(opened.first(), "state") + issuer;
      const std::optional<QByteArray> got = sendRaw(
          redirect.host(), redirect.port(),
          "GET " + target.toLatin1() + " HTTP/1.1\r\nHost: " + redirect.authority().toLatin1() + "\r\n\r\n");
      ASSERT_TRUE(got) << issuer.toStdString();
      EXPECT_TRUE(got->startsWith(QByteArray("HTTP/1.1 ") + status))
          << response.status << issuer.toStdString() << got->constData();
    }
    ASSERT_TRUE(waitFor(result));
  }
}

}  // namespace
