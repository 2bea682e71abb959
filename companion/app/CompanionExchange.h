#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <memory>

#include "companion/app/RedirectQuestion.h"
#include "companion/exchange/ExchangeDiscovery.h"

class PluginHost;

// Finds Exchange services for the plug-in: hears its commands and answers them. Main thread only.
class CompanionExchange final : public QObject {
  Q_OBJECT

 public:
  using Reach = NetworkReach;

  // `network` is how to look in the network; with Reach::Sandbox nobody outside the sandbox is asked.
  // The host is not owned and must outlive this.
  CompanionExchange(PluginHost* host, Reach reach, ExchangeConfiguration network);
  ~CompanionExchange() override;

  // A search that runs when the sandbox comes or goes fails.
  void useSandbox(const QJsonObject& description);
  void loseSandbox(const QString& reason);

 Q_SIGNALS:
  void noticed(const QString& text);  // for the user

 private:
  void search(const Dictionary& content);
  QString refusalOf(const Dictionary& content) const;
  void reportFailure(const QString& message);
  void renewDiscovery(const QString& reason);

  PluginHost* m_host;
  const Reach m_reach;
  const ExchangeConfiguration m_network;
  RedirectQuestion m_question;
  QJsonObject m_sandbox;  // empty while it is not running
  QString m_missing;      // why not
  std::unique_ptr<ExchangeDiscovery> m_discovery;
};
