#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QUrl>
#include <functional>

#include "companion/exchange/ExchangeConfiguration.h"

// The hosts that one discovery may use: those of its mail domain and those that the user allowed. Asks one
// question at a time.
class RedirectConsent final : public QObject {
 public:
  using Answer = std::function<void(bool isAllowed)>;
  enum class Question { UnlessTrusted, Always };

  explicit RedirectConsent(RedirectPrompt prompt) : m_prompt(std::move(prompt)) {}
  ~RedirectConsent() override;

  void trustDomain(const QString& domain) { m_domains.append(domain); }
  // Nothing else from now on; the user is not asked any more.
  void trustOnly(const QStringList& domains);
  bool isTrusted(const QString& host) const;

  // Answers at once where it is known, else when the user has answered; never after `context` is gone.
  void ask(const QUrl& target, Question question, QObject* context, Answer answer);
  // Drops the questions of that context.
  void forget(const QObject* context);

 private:
  struct Pending {
    QUrl target;
    QPointer<QObject> context;
    Answer answer;
  };

  void openNext();
  void settle(bool isAllowed);

  RedirectPrompt m_prompt;
  QStringList m_domains;
  QSet<QString> m_allowed;
  QSet<QString> m_declined;
  QList<Pending> m_pending;
  quint64 m_open = 0;  // the number of the question that is open; 0 for none
  quint64 m_lastNumber = 0;
};
