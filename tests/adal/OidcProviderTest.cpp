#include <QDir>
#include <QFile>
#include <QNetworkReply>
#include <QProcess>
#include <QRegularExpression>

#include "tests/adal/SignInFixture.h"

namespace {

constexpr int installTimeout = 240000;

// A program's standard output; nothing when it is missing or fails.
std::optional<QByteArray> outputOf(const QString& program, const QStringList& arguments,
                                   int timeout = 20000) {
  QProcess process;
  process.start(program, arguments);
  const bool isDone = process.waitForFinished(timeout) && process.exitStatus() == QProcess::NormalExit;
  if (!isDone || process.exitCode() != 0) return {};
  return process.readAllStandardOutput();
}

// Installs the provider into the build folder, once. Returns why that is not possible, or a null text.
QString whyNotInstalled(const QDir& folder) {
  const QByteArray version = outputOf("node", {"--version"}).value_or(QByteArray());
  if (version.sliced(version.isEmpty() ? 0 : 1).split('.').first().toInt() < 20)
    return "needs Node.js 20 or newer";
  const QDir sources(QStringLiteral(KZ_OIDC_SOURCES));
  folder.mkpath(".");
  for (const char* name : {"package.json", "server.mjs"}) {
    QFile::remove(folder.filePath(name));
    if (!QFile::copy(sources.filePath(name), folder.filePath(name)))
      return "the build folder cannot be written";
  }
  if (folder.exists("node_modules/oidc-provider/package.json")) return {};
  const QStringList install{"install", "--no-audit", "--no-fund", "--prefix", folder.path()};
  return outputOf("npm", install, installTimeout) ? QString() : "npm cannot install oidc-provider";
}

class OidcProviderTest : public SignInFixture {
 protected:
  void SetUp() override {
    const QDir folder(QStringLiteral(KZ_OIDC_FOLDER));
    static const QString whyNot = whyNotInstalled(folder);
    if (!whyNot.isEmpty()) GTEST_SKIP() << "no independent provider: " << whyNot.toStdString();
    provider.setProcessChannelMode(QProcess::SeparateChannels);
    provider.start("node", {folder.filePath("server.mjs")});
    ASSERT_TRUE(QTest::qWaitFor([this] { return provider.canReadLine(); }, 20000))
        << provider.readAllStandardError().constData();
    const QString issuer = QString::fromUtf8(provider.readLine()).trimmed();
    ADError error;
    context = ADAuthenticationContext::initWithAuthority(issuer, ADAuthorityValidation::Off, error);
    ASSERT_TRUE(context);
  }
  void TearDown() override {
    provider.closeWriteChannel();
    if (provider.state() != QProcess::NotRunning && !provider.waitForFinished(5000)) provider.kill();
  }

  // Follows redirects, with cookies, to the page at which a browser would end.
  QNetworkReply* finished(QNetworkReply* reply) {
    EXPECT_TRUE(QTest::qWaitFor([reply] { return reply->isFinished(); }));
    reply->deleteLater();
    return reply;
  }
  QUrl openPage() { return finished(browser.get(QNetworkRequest(opened.last())))->url(); }
  QUrl submit(const QUrl& page, const QByteArray& form) {
    QNetworkRequest request(page);
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
    return finished(browser.post(request, form))->url();
  }

  QProcess provider;
};

TEST_F(OidcProviderTest, SignsInAndRefreshes) {
  Result signedIn;
  signIn(signedIn);
  ASSERT_TRUE(waitForBrowser());
  const QUrl login = openPage();
  ASSERT_TRUE(login.path().startsWith("/interaction/")) << login.toString().toStdString();
  const QUrl consent = submit(login, "prompt=login&login=alice&password=x");
  ASSERT_TRUE(consent.path().startsWith("/interaction/")) << consent.toString().toStdString();
  submit(consent, "prompt=consent");
  ASSERT_TRUE(waitFor(signedIn));
  ASSERT_EQ(signedIn->status, ADAuthenticationStatus::Succeeded) << signedIn->error->text().toStdString();
  EXPECT_EQ(signedIn->tokenCacheItem->userInformation.userId, "alice");
  ASSERT_EQ(items().size(), 2);
  const QString firstToken = items().first().refreshToken;

  Result refreshed;
  refresh(refreshed, firstToken);
  ASSERT_TRUE(waitFor(refreshed));
  ASSERT_EQ(refreshed->status, ADAuthenticationStatus::Succeeded) << refreshed->error->text().toStdString();
  EXPECT_NE(refreshed->tokenCacheItem->accessToken, signedIn->tokenCacheItem->accessToken);
  ASSERT_EQ(items().size(), 2);
  EXPECT_NE(items().first().refreshToken, firstToken);

  // Redeeming a token twice makes this provider revoke its successors as well.
  const QList<ADTokenCacheItem> stored = items();
  Result reused;
  refresh(reused, firstToken);
  ASSERT_TRUE(waitFor(reused));
  ASSERT_TRUE(reused->error);
  EXPECT_EQ(reused->error->code, ADErrorCode::InvalidGrant);
  EXPECT_EQ(items(), stored);
}

}  // namespace
