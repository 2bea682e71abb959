#include "KZPreference/authentication/TokenRequests.h"

#include <QAbstractEventDispatcher>
#include <QTimer>
#include <utility>

#include "KZPreference/authentication/ADAuthenticationWrapper.h"
#include "KZPreference/authentication/ADTokenCacheWrapper.h"
#include "KZPreference/contract/PluginCommandSender.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

Dictionary tokenFor(const Content& request) {
  const Dictionary exchange =
      dictionaryValue(dictionaryValue(request.value_or(Dictionary()), kKZCalendarIntegration),
                      kKZCalendarIntegrationExchange);
  return ADTokenCacheWrapper::sharedInstance().getAccessTokenByEmail(
      textValue(exchange, kKZCalendarIntegrationExchangeEmail),
      textValue(exchange, kKZCalendarIntegrationExchangeUsername));
}

bool mustRefresh(const Dictionary& token) {
  return isSet(token, QStringLiteral("isTokenExpired"));
}

Dictionary refreshTokenInfo(const Dictionary& token) {
  return dictionaryValue(token, QStringLiteral("refreshTokenInfo"));
}

QString refreshTokenIn(const Dictionary& token) {
  return textValue(refreshTokenInfo(token), QStringLiteral("refreshToken"));
}

}  // namespace

TokenRequests::TokenRequests(ADAuthenticationWrapper* wrapper, PluginCommandSender* sender)
    : m_wrapper(wrapper), m_sender(sender) {}

void TokenRequests::request(const Content& content) {
  const Dictionary token = tokenFor(content);
  if (!mustRefresh(token)) return answer(content, token);
  const bool isFree = !m_refreshing && m_turns.isEmpty() && !m_wrapper->hasUnreportedResult();
  if (isFree) {
    refresh(content, token);
  } else {
    wait(content, refreshTokenIn(token));
  }
}

void TokenRequests::wait(const Content& content, const QString& refreshToken) {
  if (m_refreshing != refreshToken && !m_waiting.contains(refreshToken)) m_turns.enqueue(refreshToken);
  m_waiting[refreshToken].append(content);
  if (!m_refreshing) takeTurnLater();
}

// A sign-in's result waits until no refresh is out; a timer lets it in before the next one.
void TokenRequests::takeTurnLater() {
  QTimer::singleShot(0, this, &TokenRequests::takeTurn);
}

void TokenRequests::takeTurn() {
  if (m_wrapper->hasUnreportedResult()) return takeTurnLater();
  while (!m_refreshing && !m_turns.isEmpty()) {
    // Looked up anew, because a sign-in may have changed the tokens meanwhile.
    const QString turn = m_turns.dequeue();
    QList<Content> group = m_waiting.take(turn);
    while (!m_refreshing && !group.isEmpty()) {
      const Content content = group.takeFirst();
      const Dictionary token = tokenFor(content);
      if (mustRefresh(token)) {
        refresh(content, token);
      } else {
        later([this, content, token] { answer(content, token); });
      }
    }
    // Another token than they waited for may be another user's.
    for (const Content& left : std::as_const(group))
      wait(left, m_refreshing == turn ? turn : refreshTokenIn(tokenFor(left)));
  }
}

// A request that cannot start is silent.
void TokenRequests::refresh(const Content& content, const Dictionary& token) {
  m_refreshing = refreshTokenIn(token);
  const bool isStarted = m_wrapper->refreshTokenWithParams(
      refreshTokenInfo(token), content.value_or(Dictionary()),
      [this](const ADAuthenticationResult& result) { onRefreshed(result); });
  if (!isStarted) m_refreshing.reset();
}

// The wrapper answers the request that started the refresh, as soon as this returns. The others follow in the
// order in which they came.
void TokenRequests::onRefreshed(const ADAuthenticationResult& result) {
  const QList<Content> waiting = m_waiting.take(*std::exchange(m_refreshing, {}));
  for (const Content& content : waiting) {
    later([this, content, result] {
      const Dictionary token = tokenFor(content);
      if (!mustRefresh(token)) return answer(content, token);
      answer(content, ADAuthenticationWrapper::refreshAnswer({}, result));
    });
  }
  if (!m_turns.isEmpty()) takeTurnLater();
}

void TokenRequests::answer(const Content& content, const Dictionary& token) {
  if (token.isEmpty()) {
    m_sender->sendPluginCommand(KZCommand::KZCmdExchOnlineTokenGot, content);
    return;
  }
  Dictionary reply = content.value_or(Dictionary());
  reply.insert(token);
  m_sender->sendPluginCommand(KZCommand::KZCmdExchOnlineTokenGot, reply);
}

void TokenRequests::later(const std::function<void()>& step) {
  const auto run = [step] {
    // Otherwise an event loop that the host runs from within an answer could wait before it delivers the
    // next.
    QAbstractEventDispatcher::instance()->wakeUp();
    step();
  };
  QMetaObject::invokeMethod(this, run, Qt::QueuedConnection);
}
