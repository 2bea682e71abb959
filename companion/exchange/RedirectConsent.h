#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>
#include <QUrl>
#include <functional>

#include "companion/exchange/ExchangeConfiguration.h"

// Which hosts one discovery may use: those of its mail domain and those that the user allowed. Puts its
// questions one after the other.
class RedirectConsent final : public QObject {
 public:
  using Answer = std::function<void(bool isAllowed)>;
  enum class Question { UnlessTrusted, Always };

  explicit RedirectConsent(RedirectPrompt prompt) : m_prompt(std::move(prompt)) {}
  ~RedirectConsent() override;

  void trustDomain(const QString& domain) { m_domains.append(domain); }
  // Nothing else from now on, and nobody is asked.
  void trustOnly(const QStringList& domains);
  bool isTrusted(const QString& host) const;

  // Answers at once where it is known, else when the user has answered; never after `asker` is gone.
  void ask(const QUrl& target, Question question, QObject* asker, Answer answer);
  void forget(const QObject* asker);

 private:
  struct Pending {
    QUrl target;
    QPointer<QObject> asker;
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
