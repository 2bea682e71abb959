#include <QElapsedTimer>

#include "companion/network/WebAddress.h"
#include "host/KZFoundation/KZConstants.h"
#include "tests/exchange/DiscoveryFixture.h"

namespace {

struct FaultCase {
  const char* name;
  const char* email;
  const char* says;
  int mostVisits;  // of all hosts together
};

class DiscoveryFaultTest : public DiscoveryFixture, public testing::WithParamInterface<FaultCase> {};

TEST_P(DiscoveryFaultTest, EndsInTimeWithATellingMessage) {
  QElapsedTimer clock;
  clock.start();
  detect(GetParam().email);
  const QString message = waitForMessage();
  EXPECT_LT(clock.elapsed(), 5000);
  EXPECT_TRUE(message.contains(GetParam().says)) << message.toStdString();
  EXPECT_LE(server.visits().size(), GetParam().mostVisits);
  EXPECT_TRUE(challenges.isEmpty());
  expectNothingMore();
}

INSTANTIATE_TEST_SUITE_P(
    Faults, DiscoveryFaultTest,
    testing::Values(FaultCase{"Silent", "silent@silent.sandbox.example", "in time", 3},
                    FaultCase{"Drip", "drip@drip.sandbox.example", "in time", 3},
                    FaultCase{"ServerError", "error@error.sandbox.example", "problem of its own", 3},
                    FaultCase{"OtherName", "certificate@certificate.sandbox.example", "another name", 1},
                    FaultCase{"Loop", "loop@loop.sandbox.example", "keeps leading", 23},
                    FaultCase{"BareChallenge", "bare@bare.sandbox.example", "only way supported", 3},
                    FaultCase{"Entities", "entities@entities.sandbox.example", "no usable answer", 3},
                    FaultCase{"Garbage", "garbage@garbage.sandbox.example", "no usable answer", 3},
                    FaultCase{"NothingThere", "nothing@nothing.sandbox.example", "has no Exchange service",
                              3},
                    FaultCase{"NoSuchName", "x@nosuch.invalid", "was not found", 0},
                    FaultCase{"NoDomain", "x", "no usable domain", 0},
                    FaultCase{"NoLocalPart", "@corp.sandbox.example", "no usable domain", 0},
                    FaultCase{"PathInDomain", "x@corp.sandbox.example/y", "no usable domain", 0},
                    FaultCase{"PortInDomain", "x@corp.sandbox.example:99", "no usable domain", 0}),
    [](const auto& test) { return test.param.name; });

// A server beside the sandbox that gives one response to every request.
class DiscoveryResponseTest : public DiscoveryFixture {
 protected:
  void SetUp() override {
    DiscoveryFixture::SetUp();
    const auto tls = m_certificates.serverOf({"*.evil.example", "evil.example"});
    if (!tls) GTEST_SKIP() << "the openssl program is missing";
    m_server = std::make_unique<sandbox::HttpServer>(*tls);
    ASSERT_TRUE(m_server->listen());
    m_server->handle("/autodiscover/autodiscover.xml", [this](const sandbox::HttpRequest& request) {
      authorizations.append(request.headers.value("authorization"));
      return response;
    });
    configuration.network.endpoint = [this, sandboxed = configuration.network.endpoint](const QUrl& url) {
      if (!isWithinDomain(url.host(), "evil.example")) return sandboxed(url);
      const bool isEncrypted = url.scheme() == "https";
      return std::optional<NetworkEndpoint>(
          {"127.0.0.1", static_cast<quint16>(isEncrypted ? m_server->url().port() : 1),
           QSslCertificate::fromData(m_certificates.authority().toLatin1())});
    };
  }

  static QByteArray account(const QByteArray& content) {
    return "<Autodiscover><Response><Account>" + content + "</Account></Response></Autodiscover>";
  }

  sandbox::HttpResponse response;
  QList<QByteArray> authorizations;

 private:
  sandbox::Certificates m_certificates;
  std::unique_ptr<sandbox::HttpServer> m_server;
};

TEST_F(DiscoveryResponseTest, NeverGoesOnUnencryptedOrToAForeignHostUnasked) {
  const QByteArray leads[] = {
      "<Action>redirectUrl</Action><RedirectUrl>http://autodiscover.evil.example/x</RedirectUrl>",
      "<Action>redirectUrl</Action><RedirectUrl>https://a:b@autodiscover.evil.example/x</RedirectUrl>",
      "<Action>redirectUrl</Action><RedirectUrl>file:///etc/passwd</RedirectUrl>"};
  for (const QByteArray& lead : leads) {
    response = {.body = account(lead)};
    detect("x@evil.example");
    EXPECT_TRUE(waitForMessage().contains("unsafe")) << lead.toStdString();
  }
  response = {
      .body = account("<Action>redirectUrl</Action><RedirectUrl>https://autodiscover.corp.sandbox.example/"
                      "autodiscover/autodiscover.xml</RedirectUrl>")};
  detect("x@evil.example");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !openQuestions.isEmpty(); }));
  EXPECT_TRUE(server.visits().isEmpty());
  openQuestions.takeFirst()(false);
  EXPECT_TRUE(waitForMessage().contains("did not allow autodiscover.corp.sandbox.example"));
  EXPECT_EQ(asked.size(), 1) << "asked twice about one host";
}

TEST_F(DiscoveryResponseTest, TellsWhatTheUserDeclinedBeforeWhatAnotherServerDid) {
  configuration.network.endpoint = [this, others = configuration.network.endpoint](const QUrl& url) {
    return url.host() == "autodiscover.evil.example" ? description.encrypted : others(url);
  };
  detect("x@autodiscover.evil.example");
  EXPECT_TRUE(waitForMessage().contains("belongs to another name"));
  response = {.body = account("<Action>redirectUrl</Action><RedirectUrl>https://corp.sandbox.example/x"
                              "</RedirectUrl>")};
  detect("x@evil.example");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !openQuestions.isEmpty(); }));
  openQuestions.takeFirst()(false);
  EXPECT_TRUE(waitForMessage().contains("did not allow corp.sandbox.example"));
}

TEST_F(DiscoveryResponseTest, AsksBeforeMeetingsAreReadFromAForeignHost) {
  response = {.body = account("<Action>settings</Action><Protocol><Type>EXPR</Type><EwsUrl>"
                              "https://mail.corp.sandbox.example/x</EwsUrl></Protocol>")};
  detect("x@evil.example");
  ASSERT_TRUE(QTest::qWaitFor([this] { return !openQuestions.isEmpty(); }));
  openQuestions.takeFirst()(false);
  EXPECT_TRUE(waitForMessage().contains("did not allow mail.corp"));
}

TEST_F(DiscoveryResponseTest, AsksForNoPasswordWhereOnlyAQuotedTextNamesItsScheme) {
  response = {.status = 401,
              .headers = {{"WWW-Authenticate", "Negotiate realm=\"x, Basic y\", charset=UTF-8"}}};
  detect("x@evil.example");
  EXPECT_TRUE(waitForMessage().contains("only way supported"));
}

TEST_F(DiscoveryResponseTest, SendsAPasswordNowhereElseAfterARedirect) {
  response = {.status = 401, .headers = {{"WWW-Authenticate", "Basic realm=\"x\""}}};
  detect("x@evil.example");
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  response = {
      .status = 307,
      .headers = {{"Location", "https://autodiscover.corp.sandbox.example/autodiscover/autodiscover.xml"}}};
  sinkPassword();
  ASSERT_TRUE(QTest::qWaitFor([this] { return !openQuestions.isEmpty(); }));
  EXPECT_TRUE(server.visits().isEmpty());
  allowEverything();
  ASSERT_FALSE(waitForExchange().isEmpty());
  EXPECT_EQ(asked, (QStringList{"autodiscover.corp.sandbox.example", "mail.corp.sandbox.example"}));
  EXPECT_EQ(challenges.size(), 2) << "each server is a challenge of its own";
}

TEST_F(DiscoveryResponseTest, SendsAPasswordOnceWhenTheServerHangsUp) {
  configuration.stagger = std::chrono::seconds(5);
  response = {.status = 401, .headers = {{"WWW-Authenticate", "Basic realm=\"x\""}}};
  detect("x@evil.example");
  ASSERT_FALSE(waitFor(KZNotify::KZNotifyExchangeResolvingNeedCredential).isEmpty());
  response = {.delivery = sandbox::HttpResponse::Delivery::HangUp};
  authorizations.clear();
  sinkPassword();
  EXPECT_TRUE(waitForMessage().contains("cannot be reached"));
  EXPECT_EQ(authorizations.size() - authorizations.count(QByteArray()), 1);
}

TEST_F(DiscoveryResponseTest, WaitsForNoNameServerThatIsSilent) {
  configuration.services = [](const QString&, QObject*, const ServicesFound&) {};
  response = {.status = 403};
  detect("x@evil.example");
  EXPECT_TRUE(waitForMessage().contains("does not let you in"));
}

TEST_F(DiscoveryResponseTest, RefusesWhatIsTooLongAndTooManyAddresses) {
  response = {.delivery = sandbox::HttpResponse::Delivery::Flood};
  detect("x@evil.example");
  const QString message = waitForMessage();
  EXPECT_TRUE(message.contains("no usable answer")) << message.toStdString();
  response = {.body = account("<Action>redirectAddr</Action><RedirectAddr>X@EVIL.example</RedirectAddr>")};
  detect("x@evil.example");
  EXPECT_TRUE(waitForMessage().contains("keeps leading"));
  response = {.body =
                  "<Autodiscover><Response><Error><ErrorCode>500</ErrorCode><Message>No such  mailbox"
                  "</Message></Error></Response></Autodiscover>"};
  detect("x@evil.example");
  EXPECT_TRUE(waitForMessage().contains("\"No such mailbox\""));
}

}  // namespace
