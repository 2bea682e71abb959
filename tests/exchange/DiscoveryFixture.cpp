#include "tests/exchange/DiscoveryFixture.h"

#include <QJsonDocument>

#include "host/KZFoundation/KZConstants.h"

DiscoveryFixture::DiscoveryFixture()
    : server(QStringLiteral("http://127.0.0.1:1"),
             [](const QString& token) { return token == QLatin1String("good-token"); }) {
  auto& center = KZNotificationCenter::defaultCenter();
  m_authenticator =
      center.addObserver("HTTPAuthenticationRequired", [this, &center](const KZNotification& challenge) {
        challenges.append(challenge.userInfo);
        const bool isRefused = textValue(challenge.userInfo, "ShowWarningMsg") == "true";
        const QString nothing = QStringLiteral("");
        center.post({.name = "HTTPAuthenticationDatasource",
                     .object = this,
                     .userInfo = {{"Username", isRefused ? nothing : username},
                                  {"Password", isRefused ? nothing : password},
                                  {"Remember", "1"},
                                  {"isExchAutodiscovering", true}}});
      });
}

void DiscoveryFixture::SetUp() {
  if (!server.listen()) GTEST_SKIP() << "the openssl program is missing: no certificate for the sandbox";
  description = SandboxDescription::fromJson(QJsonDocument(server.describe()).toJson());
  configuration = description.addedTo(quickConfiguration());
  configuration.prompt.ask = [this](const QUrl& target, RedirectPrompt::Answer answer) {
    asked.append(target.host());
    if (isEverythingAllowed) return answer(true);
    openQuestions.append(std::move(answer));
  };
  configuration.prompt.withdraw = [this] { ++withdrawn; };
}

ExchangeConfiguration DiscoveryFixture::quickConfiguration() {
  using namespace std::chrono_literals;
  ExchangeConfiguration quick;
  quick.network.limits.request = 400ms;
  quick.stagger = 50ms;
  return quick;
}

void DiscoveryFixture::detect(const QString& email) {
  discovery =
      std::make_unique<ExchangeDiscovery>(configuration, Dictionary{{QRT_ExchangeDiscover_Email, email}});
  QObject::connect(discovery.get(), &ExchangeDiscovery::notified, discovery.get(),
                   [this](KZNotify index, const Dictionary& content) {
                     notified.append({index, content});
                   });
}

void DiscoveryFixture::sinkPassword() {
  discovery->sinkCredential({{QRT_CredentialType, QRT_CredentialTypeUsernamePassword},
                             {QRT_CredentialContent, username + ":" + password}});
}

void DiscoveryFixture::allowEverything() {
  isEverythingAllowed = true;
  for (const RedirectPrompt::Answer& answer : std::exchange(openQuestions, {})) answer(true);
}

Dictionary DiscoveryFixture::waitFor(KZNotify index, int milliseconds) {
  if (!QTest::qWaitFor([this] { return !notified.isEmpty(); }, milliseconds)) return {};
  const auto [got, content] = notified.takeFirst();
  EXPECT_EQ(got, index);
  return got == index ? content : Dictionary();
}

Dictionary DiscoveryFixture::waitForExchange() {
  const Dictionary content = waitFor(KZNotify::KZNotifyResolveExchangeDone);
  EXPECT_EQ(textValue(content, kKZResult), kKZSuccess)
      << textValue(dictionaryValue(content, kKZErrorHandleData), kKZErrorMessage).toStdString();
  return dictionaryValue(content, QRT_ExchangeDiscover_Exchange);
}

QString DiscoveryFixture::waitForMessage() {
  const Dictionary content = waitFor(KZNotify::KZNotifyResolveExchangeDone, 6000);
  EXPECT_EQ(textValue(content, kKZResult), kKZFail);
  return textValue(dictionaryValue(content, kKZErrorHandleData), kKZErrorMessage);
}

void DiscoveryFixture::expectNothingMore(int milliseconds) {
  // What had left before the end still arrives.
  QTest::qWait(50);
  const qsizetype visits = server.visits().size();
  QTest::qWait(milliseconds);
  EXPECT_TRUE(notified.isEmpty());
  EXPECT_EQ(server.visits().size(), visits);
}

QList<sandbox::Sandbox::Visit> DiscoveryFixture::authorizedVisits() const {
  QList<sandbox::Sandbox::Visit> visits = server.visits();
  visits.removeIf([](const auto& visit) { return visit.authorization.isEmpty(); });
  return visits;
}

int DiscoveryFixture::visitsOf(const QString& host) const {
  return static_cast<int>(std::count_if(server.visits().begin(), server.visits().end(),
                                        [&host](const auto& visit) { return visit.host == host; }));
}
