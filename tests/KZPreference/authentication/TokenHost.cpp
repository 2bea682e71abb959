#include "tests/KZPreference/authentication/TokenHost.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include "adal/ADAuthenticationSettings.h"
#include "adal/ADTokenCache.h"
#include "host/KZFoundation/KZConstants.h"

TokenHost::TokenHost() {
  ADAuthenticationSettings::sharedInstance().setDefaultStorageDelegate(nullptr);
  EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
}

TokenHost::~TokenHost() {
  onAnswer = {};
  EXPECT_FALSE(ADTokenCache::defaultCache().replaceAllItems({}));
}

void TokenHost::addUser(const QString& user, Token token) {
  addUser(user, provider.authority(), provider.grant(user), token);
}

void TokenHost::addUser(const QString& user, const QString& authority, const QString& refreshToken,
                        Token token) {
  ADTokenCacheItem access;
  access.userInformation.userId = user;
  access.authority = authority;
  access.resource = QStringLiteral("https://mail.example.com");
  access.clientId = QStringLiteral("client-1");
  ADTokenCacheItem refresh = access;
  access.accessToken = QStringLiteral("stored-of-") + user;
  access.expiresOn = adNow().addSecs(token == Token::Valid ? 3600 : -1);
  refresh.resource.clear();
  refresh.refreshToken = refreshToken;
  refresh.multiResource = true;
  EXPECT_FALSE(ADTokenCache::defaultCache().addOrUpdateItems({access, refresh}));
}

int TokenHost::ask(const QString& user, const QString& username) {
  const int number = ++m_asked;
  command(KZCommand::KZCmdGetExchOnlineToken,
          Dictionary{{QStringLiteral("number"), number},
                     {kKZCalendarIntegration,
                      Dictionary{{kKZCalendarIntegrationExchange,
                                  Dictionary{{kKZCalendarIntegrationExchangeEmail, user},
                                             {kKZCalendarIntegrationExchangeUsername, username}}}}}});
  return number;
}

std::optional<Dictionary> TokenHost::answerTo(int request) const {
  const auto found = m_answers.constFind(request);
  return found == m_answers.constEnd() ? std::nullopt : std::optional(*found);
}

// Qt Test's own waiting sleeps between its checks, which would cost more than the refreshes.
bool TokenHost::waitForAnswers(int count, int milliseconds) const {
  const QDeadlineTimer deadline(milliseconds);
  QTimer wakeUp;
  wakeUp.start(100);
  while (order.size() < count && !deadline.hasExpired())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  return order.size() >= count;
}

quint64 TokenHost::sendPluginCommand(const KZEventIdentify& event, const Content& content) {
  const auto command = static_cast<KZCommand>(event.m_componentEventIndex);
  if (command == KZCommand::KZCmdSinkOutlookAccountCredential) credentials.append(*content);
  if (command != KZCommand::KZCmdExchOnlineTokenGot) return TestHost::sendPluginCommand(event, content);
  const int number = content->value(QStringLiteral("number")).toInt();
  m_answers.insert(number, *content);
  order.append(number);
  if (onAnswer) onAnswer(*content);
  return 0;
}
