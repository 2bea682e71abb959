#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <memory>

#include "adal/ADAuthenticationContext.h"
#include "adal/ADTokenCache.h"
#include "bench/BenchHost.h"
#include "bench/Rounds.h"
#include "companion/runtime/PluginHost.h"
#include "sandbox/Authority.h"
#include "sandbox/HttpServer.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kCachedItems = 10'000;
constexpr int kLookUpRounds = 200;
constexpr int kRefreshRounds = 100;

QList<ADTokenCacheItem> itemsOfManyUsers() {
  QList<ADTokenCacheItem> items;
  for (int index = 0; index < kCachedItems; ++index) {
    ADTokenCacheItem item;
    item.userInformation.userId =
        QStringLiteral("user%1@example.com").arg(index / 2, 5, 10, QLatin1Char('0'));
    item.authority = QStringLiteral("https://login.example.com/common");
    item.clientId = QStringLiteral("client-1");
    item.multiResource = index % 2 == 1;
    (item.multiResource ? item.refreshToken : item.accessToken) = QString(200, QLatin1Char('t'));
    item.expiresOn = QDateTime::currentDateTimeUtc().addSecs(3600);
    items.append(item);
  }
  return items;
}

// A look-up of the last user's token through the plug-in, compared with the text comparisons alone.
void tokenLookUp(benchmark::State& state) {
  const QList<ADTokenCacheItem> items = itemsOfManyUsers();
  KZTokenLookup* const plugin = benchhost::host().tokenLookup();
  if (plugin == nullptr || ADTokenCache::defaultCache().replaceAllItems(items)) {
    state.SkipWithError("no tokens to look up");
    return;
  }
  const QString email = items.last().userInformation.userId.toUpper();
  const QString username = QStringLiteral("USER00000@EXAMPLE.NET");
  bool isFound = true;
  const auto lookUp = [&] {
    const auto start = Clock::now();
    isFound = !plugin->getAccessTokenByEmail(email, username).isEmpty() && isFound;
    return Clock::now() - start;
  };
  const auto scan = [&] {
    const auto start = Clock::now();
    int matches = 0;
    for (const ADTokenCacheItem& item : items) {
      const QString& user = item.userInformation.userId;
      if (user.compare(email, Qt::CaseInsensitive) == 0 || user.compare(username, Qt::CaseInsensitive) == 0)
        ++matches;
    }
    benchmark::DoNotOptimize(matches);
    return Clock::now() - start;
  };
  Rounds{lookUp, scan}.run(state);
  if (!isFound || ADTokenCache::defaultCache().replaceAllItems({}))
    state.SkipWithError("a look-up found nothing");
}
BENCHMARK(tokenLookUp)->Iterations(kLookUpRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

// The body of a reply, waited for in an event loop.
QByteArray exchanged(QNetworkReply* reply) {
  QEventLoop loop;
  QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
  if (!reply->isFinished()) loop.exec();
  reply->deleteLater();
  return reply->readAll();
}

void tokenRefresh(benchmark::State& state) {
  sandbox::HttpServer server;
  if (!server.listen()) {
    state.SkipWithError("no port");
    return;
  }
  sandbox::Authority authority(server, QStringLiteral("/common"));
  bool isGood = true;
  const auto refresh = [&] {
    const QString token = authority.grantRefreshToken(QStringLiteral("client-1"));
    const auto start = Clock::now();
    QEventLoop loop;
    ADError error;
    const auto context =
        ADAuthenticationContext::initWithAuthority(authority.address(), ADAuthorityValidation::Off, error);
    context->acquireTokenWithRefreshToken(
        token, QStringLiteral("https://mail.example.com"), QStringLiteral("client-1"), QUrl(),
        [&](const ADAuthenticationResult& result) {
          isGood = result.status == ADAuthenticationStatus::Succeeded && isGood;
          loop.quit();
        });
    loop.exec();
    return Clock::now() - start;
  };
  const auto exchange = [&] {
    const QString token = authority.grantRefreshToken(QStringLiteral("client-1"));
    const auto start = Clock::now();
    QNetworkAccessManager manager;
    exchanged(manager.get(QNetworkRequest(QUrl(authority.address() + "/.well-known/openid-configuration"))));
    QNetworkRequest request(QUrl(authority.address() + "/oauth2/token"));
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
    const QByteArray form = "grant_type=refresh_token&client_id=client-1&refresh_token=" + token.toLatin1();
    isGood = exchanged(manager.post(request, form)).contains("access_token") && isGood;
    return Clock::now() - start;
  };
  Rounds{refresh, exchange}.run(state);
  if (!isGood || ADTokenCache::defaultCache().replaceAllItems({})) state.SkipWithError("a refresh failed");
}
BENCHMARK(tokenRefresh)->Iterations(kRefreshRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
