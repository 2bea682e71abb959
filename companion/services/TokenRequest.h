#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <chrono>

#include "host/KZFoundation/Dictionary.h"

class PluginHost;

// Asks the plug-in for the token of an online account. One request at a time; a new one ends the one before.
// Main thread only.
class TokenRequest final : public QObject {
  Q_OBJECT

 public:
  // The host is not owned and must outlive this.
  explicit TokenRequest(PluginHost* host, std::chrono::milliseconds timeLimit = std::chrono::minutes(1));

  // One of the signals follows, possibly before this returns. A token that comes after the time limit, and so
  // after `failed`, is still reported.
  void ask(const Dictionary& exchange);
  void cancel();

 Q_SIGNALS:
  void got(const QString& token);
  void failed(const QString& reason);  // a sentence for the user

 private:
  void takeToken(const Dictionary& values);
  void fail(const QString& reason);

  PluginHost* m_host;
  QTimer m_deadline;
  QString m_email;  // null while nothing is asked
};
