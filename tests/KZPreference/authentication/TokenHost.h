#pragma once

#include <QHash>
#include <functional>
#include <optional>

#include "tests/kit/TestHost.h"
#include "tests/kit/TokenProvider.h"

// A host that asks the plug-in for tokens, and a provider that has given it refresh tokens.
class TokenHost : public TestHost {
 public:
  enum class Token { Expired, Valid };

  TokenHost();
  ~TokenHost() override;

  // Stores tokens of this user.
  void addUser(const QString& user, Token token = Token::Expired);
  void addUser(const QString& user, const QString& authority, const QString& refreshToken,
               Token token = Token::Expired);

  // Sends command 28 and returns the request's number.
  int ask(const QString& user, const QString& username = {});
  std::optional<Dictionary> answerTo(int request) const;
  bool waitForAnswers(int count, int milliseconds = 8000) const;

  quint64 sendPluginCommand(const KZEventIdentify& event, const Content& content) override;

  TokenProvider provider;
  std::function<void(const Dictionary& answer)> onAnswer;
  QList<int> order;  // the numbers of the requests as they were answered
  QList<Dictionary> credentials;

 private:
  int m_asked = 0;
  QHash<int, Dictionary> m_answers;
};
