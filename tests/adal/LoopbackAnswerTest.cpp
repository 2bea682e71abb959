#include <QNetworkInterface>
#include <QNetworkReply>
#include <QTcpServer>
#include <QTcpSocket>
#include <algorithm>

#include "tests/adal/SignInFixture.h"

namespace {

class LoopbackAnswerTest : public SignInFixture {
 protected:
  LoopbackAnswerTest() { start(QUrl("http://127.0.0.1/done")); }

  // Starts a sign-in; the one before is left.
  void start(const QUrl& redirectUri) {
    ADError error;
    context =
        ADAuthenticationContext::initWithAuthority(authority->address(), ADAuthorityValidation::Off, error);
    opened.clear();
    result.reset();
    signIn(result, redirectUri);
    ASSERT_TRUE(waitForBrowser());
    redirect = redirectOf(opened.first());
    state = queryValue(opened.first(), "state").toLatin1();
    answer = "code=x&iss=" + authority->address().toLatin1() + "&state=" + state;
  }

  // The answer to the bytes; nothing when the port is closed.
  std::optional<QByteArray> send(const QByteArray& bytes) {
    return sendRaw(redirect.host(), redirect.port(), bytes);
  }
  std::optional<QByteArray> get(const QByteArray& target) {
    return send("GET " + target + " HTTP/1.1\r\nHost: " + host() + "\r\n\r\n");
  }
  QByteArray host() const { return redirect.authority().toLatin1(); }

  // The page at which the browser ends.
  QByteArray shown(QNetworkReply* page) {
    EXPECT_TRUE(QTest::qWaitFor([page] { return page->isFinished(); }));
    address = page->url();
    return page->readAll();
  }

  Result result;
  QUrl redirect;
  QByteArray state;
  QByteArray answer;  // well formed, with a code that the authority refuses
  QUrl address;
};

TEST_F(LoopbackAnswerTest, BadRequestsAreRefusedAndTheRightAnswerStillCounts) {
  const QByteArray good = "/done?" + answer;
  const QByteArray end = " HTTP/1.1\r\nHost: " + host() + "\r\n\r\n";
  const QByteArray port = QByteArray::number(redirect.port());
  const std::pair<QByteArray, QByteArray> cases[] = {
      {QByteArray("\0\xff\x16\x03\x01", 5) + "\r\n\r\n", "400"},
      {"GET\r\n\r\n", "400"},
      {"GET " + good + " SMTP\r\nHost: " + host() + "\r\n\r\n", "400"},
      {"GET " + good + " HTTP/1.1\r\n\r\n", "400"},
      {"GET " + good + " HTTP/1.1\r\nHost: evil.example.com:" + port + "\r\n\r\n", "400"},
      {"GET " + good + " HTTP/1.1\r\nHost: 127.0.0.1:1\r\n\r\n", "400"},
      {"GET " + good + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n", "400"},
      {"GET " + good + " HTTP/1.1\r\nHost: u@" + host() + "\r\n\r\n", "400"},
      {"GET " + good + " HTTP/1.1\r\nHost: " + host() + "\r\nhost: evil.example.com\r\n\r\n", "400"},
      {"POST " + good + end, "405"},
      {"HEAD " + good + end, "405"},
      {"GET /favicon.ico" + end, "404"},
      {"GET /other?" + answer + end, "404"},
      {"GET /done" + end, "400"},
      {"GET /done?" + QByteArray(answer).replace(state, "wrong") + end, "400"},
      {"GET /done?" + QByteArray(answer).replace("state", "") + end, "400"},
      {"GET /done?" + QByteArray(answer).replace("code", "") + end, "400"},
      {"GET /done?" + QByteArray(answer).replace("code=x", "code=") + end, "400"},
      {"GET /done?" + QByteArray(answer).replace("iss", "") + end, "400"},
      {"GET /done?" + QByteArray(answer).replace("127.0.0.1", "evil.example.com") + end, "400"},
      {"GET /done?" + QByteArray(answer).replace("code=x", "error=access_denied").replace("iss", "") + end,
       "400"},
      {"GET /done?error=access_denied&state=wrong" + end, "400"},
      {"GET " + good + "&state=wrong" + end, "400"},
      {"GET " + good + "&iss=" + authority->address().toLatin1() + end, "400"},
      {"GET /done?code=%zz&state=%%%&&=&=" + end, "400"},
      {"GET /" + QByteArray(64 * 1024, 'a'), "431"},
  };
  for (const auto& [bytes, status] : cases) {
    const std::optional<QByteArray> got = send(bytes);
    ASSERT_TRUE(got) << bytes.left(100).constData();
    EXPECT_TRUE(got->startsWith("HTTP/1.1 " + status)) << bytes.left(100).constData() << got->constData();
    EXPECT_FALSE(result) << bytes.left(100).constData();
  }
  EXPECT_TRUE(authority->tokenRequests().isEmpty());
  EXPECT_TRUE(shown(visit(opened.first())).contains("<h1>You are signed in</h1>"));
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
  const QStringList records = logged.filter("not expected");
  ASSERT_EQ(records.size(), 1) << "one record for all";
  EXPECT_TRUE(records.first().endsWith(" 12")) << records.first().toStdString();
}

TEST_F(LoopbackAnswerTest, ManyConnectionsDoNotKeepTheBrowserOut) {
  for (const QByteArray& beginning : {QByteArray(), QByteArray("GET /done")}) {
    start(QUrl("http://127.0.0.1/done"));
    std::vector<std::unique_ptr<QTcpSocket>> others;
    const auto open = [&](int count) {
      for (int i = 0; i < count; ++i) {
        others.push_back(std::make_unique<QTcpSocket>());
        others.back()->connectToHost("127.0.0.1", static_cast<quint16>(redirect.port()));
        others.back()->write(beginning);
      }
    };
    open(200);
    ASSERT_TRUE(QTest::qWaitFor([&] {
      return std::ranges::any_of(
          others, [](const auto& socket) { return socket->state() == QAbstractSocket::UnconnectedState; });
    })) << "the oldest are closed once there are too many";
    QNetworkReply* const page = visit(opened.first());
    for (int i = 0; i < 20 && !page->isFinished(); ++i) {
      open(20);
      QTest::qWait(1);
    }
    EXPECT_TRUE(shown(page).contains("<h1>You are signed in</h1>"));
    ASSERT_TRUE(waitFor(result));
    EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
  }
}

TEST_F(LoopbackAnswerTest, TheBrowserWaitsForTheOutcomeAtAnAddressWithoutTheCode) {
  const std::optional<QByteArray> redirected = get("/done?" + answer);
  ASSERT_TRUE(redirected);
  EXPECT_TRUE(redirected->startsWith("HTTP/1.1 303")) << redirected->constData();
  EXPECT_TRUE(redirected->contains("\r\nLocation: " + redirect.toEncoded() + "\r\n"))
      << redirected->constData();
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->error->code, ADErrorCode::InvalidGrant) << "the authority did not make this code";

  // Later answers, and a page that is loaded again, show the outcome and redeem nothing.
  EXPECT_TRUE(get("/done?" + QByteArray(answer).replace("code=x", "code=y"))->startsWith("HTTP/1.1 303"));
  const std::optional<QByteArray> page = get("/done");
  ASSERT_TRUE(page);
  EXPECT_TRUE(page->contains("<h1>Sign-in did not work</h1>")) << page->constData();
  EXPECT_TRUE(page->contains("<path d=\"M17 17l14 14"));
  EXPECT_TRUE(page->contains("\r\nContent-Security-Policy: default-src 'none'; style-src 'sha256-"));
  for (const char* absent : {"<script", "http:", "https:", "url("})
    EXPECT_FALSE(page->sliced(page->indexOf("\r\n\r\n")).contains(absent)) << absent;
  EXPECT_EQ(authority->tokenRequests().size(), 1);
}

TEST_F(LoopbackAnswerTest, ShowsWhatIsKnown) {
  using Authority = sandbox::Authority;
  ADAuthenticationSettings::sharedInstance().setTextLookUp(
      [](const char* english) { return QLatin1String(english) + "<>"; }, [] { return QString("zh_CN"); });
  authority->setConsent(Authority::Consent::Refuse);
  const QByteArray refused = shown(visit(opened.first()));
  EXPECT_TRUE(refused.contains("<h1>Sign-in was refused&lt;&gt;</h1>")) << refused.constData();
  EXPECT_TRUE(refused.contains("<html lang=\"zh-CN\">")) << refused.constData();
  ADAuthenticationSettings::sharedInstance().setTextLookUp({}, {});
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Failed);
  EXPECT_EQ(result->error->code, ADErrorCode::Refused);
  EXPECT_TRUE(items().isEmpty());

  ADRequestLimits limits;
  limits.browserWait = std::chrono::milliseconds(50);
  limits.browserReload = std::chrono::milliseconds(300);
  ADAuthenticationSettings::sharedInstance().setLimits(limits);
  authority->setConsent(Authority::Consent::Give);
  authority->setFault(Authority::Fault::Late);
  start(QUrl("http://127.0.0.1/done"));
  EXPECT_TRUE(shown(visit(opened.first())).contains("<h1>Sign-in is not finished yet</h1>"));
  EXPECT_FALSE(result);
  EXPECT_EQ(address, redirect);
  ASSERT_TRUE(waitFor(result));
  EXPECT_TRUE(shown(visit(address)).contains("<h1>You are signed in</h1>")) << "loaded again";
  EXPECT_TRUE(QTest::qWaitFor([this] { return !get("/done"); })) << "the port is closed after a while";
}

TEST_F(LoopbackAnswerTest, AGivenUpSignInTellsTheBrowserAndFreesThePort) {
  authority->setFault(sandbox::Authority::Fault::Silent);
  QNetworkReply* const page = visit(opened.first());
  ASSERT_TRUE(QTest::qWaitFor([this] { return !authority->tokenRequests().isEmpty(); }));
  ASSERT_TRUE(QTest::qWaitFor([page] { return page->url().path() == "/done" || page->isFinished(); }));
  QTest::qWait(50);
  ASSERT_FALSE(page->isFinished());
  context.reset();
  EXPECT_TRUE(shown(page).contains("<h1>Sign-in did not work</h1>"));
  EXPECT_FALSE(get("/done"));
  EXPECT_FALSE(result);
}

TEST_F(LoopbackAnswerTest, AFixedPortPassesToTheNextSignIn) {
  const QUrl fixed = redirect;
  EXPECT_FALSE(fixed.port() == 0);
  Result other;
  signIn(other, QUrl(fixed.toString() + "/second"));
  ASSERT_TRUE(waitFor(other)) << "two at once: the second cannot have the port";
  EXPECT_EQ(other->error->code, ADErrorCode::Network);
  EXPECT_FALSE(result);

  visit(opened.first());
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
  const QByteArray old = state;
  start(fixed);  // while the page of the one before can still be loaded again
  EXPECT_TRUE(get("/done?code=x&state=" + old)->startsWith("HTTP/1.1 400"));

  start(fixed);  // the one before was left
  visit(opened.first());
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
}

TEST_F(LoopbackAnswerTest, ListensAtTheNamedAddressesOnly) {
  QStringList all{"127.0.0.1", "127.0.0.2", "::1"};
  const bool hasIpv6 = QTcpServer().listen(QHostAddress::LocalHostIPv6);
  for (const QHostAddress& other : QNetworkInterface::allAddresses())
    if (!other.isLoopback() && other.scopeId().isEmpty()) all.append(other.toString());
  const std::pair<const char*, QStringList> cases[] = {{"127.0.0.1", {"127.0.0.1"}},
                                                       {"127.0.0.2", {"127.0.0.2"}},
                                                       {"[::1]", {"::1"}},
                                                       {"localhost", {"127.0.0.1", "::1"}}};
  for (const auto& [named, wanted] : cases) {
    if (!hasIpv6 && wanted.first() == "::1") continue;
    start(QUrl(QStringLiteral("http://%1/done").arg(named)));
    for (const QString& host : all) {
      const bool isWanted = wanted.contains(host) && (hasIpv6 || host != "::1");
      const std::optional<QByteArray> got = sendRaw(host, redirect.port(), "GET /done HTTP/1.1\r\n\r\n");
      EXPECT_EQ(got.has_value(), isWanted) << named << " " << host.toStdString();
    }
    EXPECT_TRUE(get("/done?" + answer)->startsWith("HTTP/1.1 303")) << named;
  }
  if (!hasIpv6) return;
  QTcpServer squatter;
  ASSERT_TRUE(squatter.listen(QHostAddress::LocalHostIPv6));
  Result refused;
  signIn(refused, QUrl(QStringLiteral("http://localhost:%1/done").arg(squatter.serverPort())));
  ASSERT_TRUE(waitFor(refused)) << "a browser could go to the other program";
  EXPECT_EQ(refused->error->code, ADErrorCode::Network);
  EXPECT_FALSE(sendRaw("127.0.0.1", squatter.serverPort(), "GET / HTTP/1.1\r\n\r\n"));
}

class LoopbackDeadlineTest : public SignInFixture {};

TEST_F(LoopbackDeadlineTest, BrowserThatNeverComesBackEndsInAFailure) {
  ADRequestLimits limits;
  limits.signIn = std::chrono::milliseconds(100);
  ADAuthenticationSettings::sharedInstance().setLimits(limits);
  Result result;
  signIn(result);
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Failed);
  EXPECT_EQ(result->error->code, ADErrorCode::TimedOut);
  const QUrl redirect = redirectOf(opened.first());
  EXPECT_FALSE(sendRaw(redirect.host(), redirect.port(), "GET /done HTTP/1.1\r\n\r\n"));
}

}  // namespace
