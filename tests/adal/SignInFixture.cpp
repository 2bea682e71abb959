#include "tests/adal/SignInFixture.h"

#include <QApplication>
#include <QNetworkReply>
#include <QTcpSocket>
#include <QUrlQuery>

#include "adal/ADLogger.h"

void OutsideStorage::willAccessCache(ADTokenCache& cache) {
  if (data) static_cast<void>(cache.deserialize(data));
}

void OutsideStorage::willWriteCache(ADTokenCache& cache) {
  static_cast<void>(cache.deserialize(data));
}

void OutsideStorage::didWriteCache(ADTokenCache& cache) {
  data = cache.serialize();
  writes.append(*data);
}

void OutsideStorage::replace(const QList<ADTokenCacheItem>& items) {
  ADTokenCache other;
  static_cast<void>(other.replaceAllItems(items));
  data = other.serialize();
}

ADTokenCacheItem accessItem(const QString& user, const QString& authority) {
  ADTokenCacheItem item;
  item.userInformation.userId = user;
  item.authority = authority;
  item.resource = QStringLiteral("https://mail.example.com");
  item.clientId = QStringLiteral("client-1");
  item.accessToken = QStringLiteral("access-of-") + user;
  item.expiresOn = QDateTime::fromString("2199-01-01T00:00:00Z", Qt::ISODate);
  return item;
}

ADTokenCacheItem refreshItem(const QString& user, const QString& authority, const QString& refreshToken) {
  ADTokenCacheItem item;
  item.userInformation.userId = user;
  item.authority = authority;
  item.clientId = QStringLiteral("client-1");
  item.refreshToken = refreshToken;
  item.multiResource = true;
  return item;
}

SignInFixture::SignInFixture() {
  EXPECT_TRUE(server.listen());
  authority = std::make_unique<sandbox::Authority>(server, QStringLiteral("/common"));
  ADError error;
  context =
      ADAuthenticationContext::initWithAuthority(authority->address(), ADAuthorityValidation::Off, error);
  auto& settings = ADAuthenticationSettings::sharedInstance();
  settings.setLimits({});
  settings.setBrowserOpener([this](const QUrl& address) {
    opened.append(address);
    return true;
  });
  settings.setDefaultStorageDelegate(nullptr);
  EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
  settings.setDefaultStorageDelegate(&storage);
  ADLogger::setLevel(ADLogLevel::Verbose);
  ADLogger::setPiiEnabled(true);
  ADLogger::setNSLogging(false);
  ADLogger::setLoggerCallback([this](const QString& message, ADLogLevel, bool) { logged.append(message); });
}

SignInFixture::~SignInFixture() {
  context.reset();
  ADLogger::setLoggerCallback({});
  ADAuthenticationSettings::sharedInstance().setBrowserOpener({});
  ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(nullptr);
  // Nothing of this test is left for the next.
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void SignInFixture::signIn(Result& result) {
  signIn(result, QUrl(QStringLiteral("http://127.0.0.1/done")));
}

void SignInFixture::signIn(Result& result, const QUrl& redirectUri) {
  context->acquireTokenWithResource(
      QStringLiteral("https://mail.example.com"), QStringLiteral("client-1"), redirectUri,
      ADPromptBehavior::Always,
      ADUserIdentifier::identifierWithId(QStringLiteral("alice+work@example.com"),
                                         ADUserIdentifier::Type::OptionalDisplayableId),
      QString(), QString(), [&result](const ADAuthenticationResult& answer) {
        EXPECT_FALSE(result) << "answered twice";
        result = answer;
      });
}

void SignInFixture::refresh(Result& result, const QString& refreshToken) {
  context->acquireTokenWithRefreshToken(refreshToken, QStringLiteral("https://mail.example.com"),
                                        QStringLiteral("client-1"), QUrl(),
                                        [&result](const ADAuthenticationResult& answer) {
                                          EXPECT_FALSE(result) << "answered twice";
                                          result = answer;
                                        });
}

QNetworkReply* SignInFixture::visit(const QUrl& address) {
  return browser.get(QNetworkRequest(address));
}

std::optional<QByteArray> SignInFixture::sendRaw(const QString& host, int port, const QByteArray& bytes) {
  QTcpSocket socket;
  socket.connectToHost(host, static_cast<quint16>(port));
  const bool isSettled = QTest::qWaitFor([&] {
    return socket.state() != QAbstractSocket::ConnectingState &&
           socket.state() != QAbstractSocket::HostLookupState;
  });
  if (!isSettled || socket.state() != QAbstractSocket::ConnectedState) return {};
  socket.write(bytes);
  static_cast<void>(
      QTest::qWaitFor([&] { return socket.state() == QAbstractSocket::UnconnectedState; }, 1000));
  return socket.readAll();
}

QUrl SignInFixture::redirectOf(const QUrl& page) {
  return QUrl(queryValue(page, "redirect_uri"));
}

QString SignInFixture::queryValue(const QUrl& address, const char* name) {
  return QUrlQuery(address).queryItemValue(QLatin1String(name), QUrl::FullyDecoded);
}
