#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "companion/app/RedirectQuestion.h"
#include "companion/exchange/ExchangeDiscovery.h"
#include "companion/services/ServiceNetwork.h"

class PluginHost;

// Finds Exchange services for the plug-in: receives its commands and answers them. Main thread only.
class CompanionExchange final : public QObject {
  Q_OBJECT

 public:
  // The two are not owned and must outlive this. A search that runs when the network is lost fails.
  CompanionExchange(PluginHost* host, ServiceNetwork* network);

 Q_SIGNALS:
  void message(const QString& text);  // for the user

 private:
  void start(const Dictionary& content);

  PluginHost* m_host;
  ServiceNetwork* m_network;
  RedirectQuestion m_question;
  std::unique_ptr<ExchangeDiscovery> m_discovery;  // the last one
};
