#include <QNetworkInterface>
#include <QTcpSocket>
#include <algorithm>

#include "tests/adal/SignInFixture.h"

namespace {

class LoopbackAnswerTest : public SignInFixture {
 protected:
  LoopbackAnswerTest() {
    signIn(result);
    EXPECT_TRUE(waitForBrowser());
    redirect = redirectOf(opened.first());
    state = queryValue(opened.first(), "state").toLatin1();
  }

  std::optional<QByteArray> send(const QByteArray& bytes) {
    return sendRaw(QStringLiteral("127.0.0.1"), redirect.port(), bytes);
  }
  std::optional<QByteArray> get(const QByteArray& target) {
    return send("GET " + target + " HTTP/1.1\r\n\r\n");
  }

  Result result;
  QUrl redirect;
  QByteArray state;
};

TEST_F(LoopbackAnswerTest, BadRequestsAreRefusedAndTheRightAnswerStillCounts) {
  const std::pair<QByteArray, QByteArray> cases[] = {
      {QByteArray("\0\xff\x16\x03\x01", 5) + "\r\n\r\n", "400"},
      {"GET\r\n\r\n", "400"},
      {"GET /done?code=x&state=" + state + " SMTP\r\n\r\n", "400"},
      {"POST /done?code=x&state=" + state + " HTTP/1.1\r\n\r\n", "405"},
      {"GET /favicon.ico HTTP/1.1\r\n\r\n", "404"},
      {"GET /other?code=x&state=" + state + " HTTP/1.1\r\n\r\n", "404"},
      {"GET /done HTTP/1.1\r\n\r\n", "400"},
      {"GET /done?code=x&state=wrong HTTP/1.1\r\n\r\n", "400"},
      {"GET /done?code=x HTTP/1.1\r\n\r\n", "400"},
      {"GET /done?state=" + state + " HTTP/1.1\r\n\r\n", "400"},
      {"GET /done?error=access_denied&state=wrong HTTP/1.1\r\n\r\n", "400"},
      {"GET /done?code=x&state=" + state + "&state=wrong HTTP/1.1\r\n\r\n", "400"},
      {"GET /done?code=%zz&state=%%%&&=&= HTTP/1.1\r\n\r\n", "400"},
      {"GET /" + QByteArray(64 * 1024, 'a'), "431"},
  };
  for (const auto& [bytes, status] : cases) {
    const std::optional<QByteArray> answer = send(bytes);
    ASSERT_TRUE(answer) << bytes.left(60).constData();
    EXPECT_TRUE(answer->startsWith("HTTP/1.1 " + status))
        << bytes.left(60).constData() << answer->constData();
    EXPECT_FALSE(result) << bytes.left(60).constData();
  }
  EXPECT_TRUE(authority->tokenRequests().isEmpty());
  visit(opened.first());
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
}

TEST_F(LoopbackAnswerTest, IdleConnectionsDoNotKeepTheBrowserOut) {
  std::vector<std::unique_ptr<QTcpSocket>> idle;
  for (int i = 0; i < 100; ++i) {
    idle.push_back(std::make_unique<QTcpSocket>());
    idle.back()->connectToHost("127.0.0.1", static_cast<quint16>(redirect.port()));
  }
  // The oldest is closed once there are too many.
  ASSERT_TRUE(QTest::qWaitFor([&] {
    return std::ranges::any_of(
        idle, [](const auto& socket) { return socket->state() == QAbstractSocket::UnconnectedState; });
  }));
  visit(opened.first());
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Succeeded);
}

TEST_F(LoopbackAnswerTest, ASecondAnswerFindsTheListenerClosed) {
  QTcpSocket early;
  early.connectToHost("127.0.0.1", static_cast<quint16>(redirect.port()));
  ASSERT_TRUE(QTest::qWaitFor([&] { return early.state() == QAbstractSocket::ConnectedState; }));
  ASSERT_TRUE(get("/done?code=one&state=" + state)->startsWith("HTTP/1.1 200"));
  EXPECT_FALSE(get("/done?code=two&state=" + state)) << "the port is closed";
  early.write("GET /done?code=three&state=" + state + " HTTP/1.1\r\n\r\n");
  ASSERT_TRUE(waitFor(result));
  ASSERT_TRUE(QTest::qWaitFor([&] { return early.state() == QAbstractSocket::UnconnectedState; }));
  ASSERT_EQ(authority->tokenRequests().size(), 1);
  EXPECT_EQ(authority->tokenRequests().first().queryItemValue("code"), "one");
  EXPECT_EQ(result->error->code, ADErrorCode::InvalidGrant);
}

TEST_F(LoopbackAnswerTest, RefusalIsAFailure) {
  authority->setConsent(sandbox::Authority::Consent::Refuse);
  visit(opened.first());
  ASSERT_TRUE(waitFor(result));
  EXPECT_EQ(result->status, ADAuthenticationStatus::Failed);
  EXPECT_EQ(result->error->code, ADErrorCode::Refused);
  EXPECT_TRUE(items().isEmpty());
}

TEST_F(LoopbackAnswerTest, OtherInterfacesAreRefused) {
  QStringList others{"127.0.0.2", "::1"};
  for (const QHostAddress& address : QNetworkInterface::allAddresses()) {
    if (!address.isLoopback() && address.scopeId().isEmpty()) others.append(address.toString());
  }
  for (const QString& other : others) {
    EXPECT_FALSE(sendRaw(other, redirect.port(), "GET /done HTTP/1.1\r\n\r\n")) << other.toStdString();
  }
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
