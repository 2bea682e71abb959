#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QQueue>
#include <QString>
#include <functional>
#include <optional>

#include "host/KZFoundation/Dictionary.h"

class ADAuthenticationWrapper;
class PluginCommandSender;
struct ADAuthenticationResult;

// Answers the host's requests for Exchange Online tokens, each once and with its own content: at once where
// the token is valid or there is none, else after a refresh. One refresh is out at a time, since the wrapper
// has room for one request's content; requests for the same refresh token share it, whether it succeeds or
// fails. The host may do anything from within an answer. Main thread only.
class TokenRequests final : public QObject {
 public:
  TokenRequests(ADAuthenticationWrapper* wrapper, PluginCommandSender* sender);  // not owned

  void request(const Content& content);

 private:
  void wait(const Content& content, const QString& refreshToken);
  void takeTurnLater();
  void takeTurn();
  void refresh(const Content& content, const Dictionary& token);
  void onRefreshed(const ADAuthenticationResult& result);
  void answer(const Content& content, const Dictionary& token);
  void later(const std::function<void()>& step);

  ADAuthenticationWrapper* m_wrapper;
  PluginCommandSender* m_sender;
  std::optional<QString> m_refreshing;       // the refresh token that is out
  QHash<QString, QList<Content>> m_waiting;  // by refresh token
  QQueue<QString> m_turns;                   // refresh tokens in the order in which they were asked for
};
