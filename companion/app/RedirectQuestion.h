#pragma once

#include <QPointer>

#include "companion/exchange/ExchangeConfiguration.h"

class QMessageBox;

// Asks the user whether a discovery may go on at an address; the rest of the program stays usable. Must
// outlive whoever uses its prompt. Main thread only.
class RedirectQuestion final {
 public:
  RedirectQuestion() = default;
  ~RedirectQuestion() { withdraw(); }
  Q_DISABLE_COPY_MOVE(RedirectQuestion)

  RedirectPrompt prompt();

 private:
  void ask(const QUrl& target, RedirectPrompt::Answer answer);
  void withdraw();

  QPointer<QMessageBox> m_box;
};
