#pragma once

#include <QObject>
#include <QString>

#include "companion/exchange/ExchangeConfiguration.h"
#include "companion/network/NetworkFailure.h"
#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZCommands.h"

class DiscoveryRun;
struct DiscoveredExchange;

// Finds the Exchange service of an email as a host does for its plug-in: commands in, notifications out. One
// discovery at a time; a new one ends the one before it without a result. Main thread only.
class ExchangeDiscovery final : public QObject {
  Q_OBJECT

 public:
  explicit ExchangeDiscovery(ExchangeConfiguration configuration);
  ~ExchangeDiscovery() override;

  // For later discoveries; the current one goes on as it started.
  void setConfiguration(const ExchangeConfiguration& configuration) { m_configuration = configuration; }
  bool isRunning() const { return m_run != nullptr; }
  // Ends the current discovery with that failure; does nothing without one.
  void fail(const NetworkFailure& failure);

  // Command 15.
  void start(const Dictionary& content);
  // Command 16.
  void cancel();
  // Command 27. A credential that no discovery waits for is dropped.
  void sinkCredential(const Dictionary& content);
  // Command 22.
  void notifyAuthFailure();

 Q_SIGNALS:
  // For the plug-in.
  void notified(KZNotify index, const Dictionary& content);
  // A sentence for the user.
  void message(const QString& text);

 private:
  void askForPassword();
  void askForSignIn(const OnlineService& service, const QString& email);
  void reportFound(const DiscoveredExchange& exchange);
  void dropRun();

  ExchangeConfiguration m_configuration;
  DiscoveryRun* m_run = nullptr;
  QString m_email;
};
