#pragma once

#include <QObject>
#include <QString>

#include "companion/exchange/ExchangeConfiguration.h"
#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZCommands.h"

class DiscoveryRun;
struct DiscoveredExchange;

// Finds the Exchange service of an email as a host does for its plug-in: commands in, notifications out. One
// discovery at a time; a new one ends the one before it unanswered. Main thread only.
class ExchangeDiscovery final : public QObject {
  Q_OBJECT

 public:
  explicit ExchangeDiscovery(ExchangeConfiguration configuration);
  ~ExchangeDiscovery() override;

  bool isRunning() const { return m_run != nullptr; }

  // Command 15.
  void start(const Dictionary& content);
  // Command 16.
  void cancel();
  // Command 27. A credential that nobody waits for is dropped.
  void sinkCredential(const Dictionary& content);
  // Command 22.
  void notifyAuthFailure();

 Q_SIGNALS:
  // For the plug-in.
  void notified(KZNotify index, const Dictionary& content);
  // For the user: how it goes on, in a sentence without its full stop.
  void noticed(const QString& text);
  // A discovery is over: dialogs about it are to be closed. Its result, if it has one, follows at once.
  void ended();

 private:
  void askForPassword();
  void askForSignIn(const OnlineService& service, const QString& email);
  void reportFound(const DiscoveredExchange& exchange);
  void reportFailure(const QString& message);
  void reportRefusal(const QString& message);
  void end();
  void dropRun();

  const ExchangeConfiguration m_configuration;
  DiscoveryRun* m_run = nullptr;
  QString m_email;
};
