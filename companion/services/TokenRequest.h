#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include "host/KZFoundation/Dictionary.h"

class Border;

// Asks the plug-in for the token of an online account. One request at a time; a new one ends the one before.
// Main thread only.
class TokenRequest final : public QObject {
  Q_OBJECT

 public:
  explicit TokenRequest(Border* border);  // not owned; must outlive this

  // Exactly one of the two follows, also from within; a token that is renewed first comes later.
  void ask(const Dictionary& exchange);
  void cancel();

 Q_SIGNALS:
  void got(const QString& token);
  void failed(const QString& reason);  // a sentence for the user

 private:
  void answer(quint64 command, const Content& content);
  void fail(const QString& reason);

  Border* m_border;
  QTimer m_patience;
  QString m_email;  // null while nothing is asked
};
