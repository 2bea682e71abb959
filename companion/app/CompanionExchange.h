#pragma once

#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <memory>

#include "companion/exchange/ExchangeDiscovery.h"
#include "companion/services/ServiceNetwork.h"

class PluginHost;

// Finds Exchange services for the plug-in: handles its commands and notifies it of the result. When the
// search is redirected, it asks the user without blocking the rest of the program. Main thread only.
class CompanionExchange final : public QObject {
  Q_OBJECT

 public:
  // The two are not owned and must outlive this. A search that runs when the network is lost fails.
  CompanionExchange(PluginHost* host, ServiceNetwork* network);
  ~CompanionExchange() override;

 Q_SIGNALS:
  void message(const QString& text);  // for the user

 private:
  void start(const Dictionary& content);
  void askAboutRedirect(const QUrl& target, const RedirectPrompt::Answer& answer);

  PluginHost* m_host;
  ServiceNetwork* m_network;
  QPointer<QMessageBox> m_question;
  std::unique_ptr<ExchangeDiscovery> m_discovery;  // the last one
};
