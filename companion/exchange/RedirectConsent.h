#pragma once

#include <QList>
#include <QSet>
#include <QString>
#include <QUrl>
#include <functional>
#include <memory>

#include "companion/exchange/ExchangeConfiguration.h"

// The hosts that one discovery may use: those of its mail domain and those that the user allowed. Asks one
// question at a time.
class RedirectConsent final {
 public:
  using Answer = std::function<void(bool isAllowed)>;
  enum class Question { UnlessTrusted, Always };

  explicit RedirectConsent(RedirectPrompt prompt) : m_prompt(std::move(prompt)) {}
  ~RedirectConsent() { dropQuestions(); }
  Q_DISABLE_COPY_MOVE(RedirectConsent)

  void trustDomain(const QString& domain) { m_domains.append(domain); }
  // Allows no further host, without asking the user.
  void trustOnly(const QStringList& domains);
  bool isTrusted(const QString& host) const;

  // Answers at once where it is known, else when the user has answered.
  void ask(const QUrl& target, Question question, Answer answer);
  // No question asked so far is answered.
  void dropQuestions();

 private:
  struct Pending {
    QUrl target;
    Answer answer;
  };

  void openNext();
  void settle(bool isAllowed);

  RedirectPrompt m_prompt;
  QStringList m_domains;
  QSet<QString> m_allowed;
  QSet<QString> m_declined;
  QList<Pending> m_pending;
  std::shared_ptr<const char> m_open;  // identifies the question that is open; null for none
};
