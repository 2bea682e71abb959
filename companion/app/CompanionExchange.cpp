#include "companion/app/CompanionExchange.h"

#include "companion/runtime/PluginHost.h"

CompanionExchange::CompanionExchange(PluginHost* host, ServiceNetwork* network)
    : m_host(host), m_network(network) {
  host->handle(KZCommand::KZCmdApplyOutlookAccount, this,
               [this](const Content& content) { start(content.value_or(Dictionary())); });
  host->handle(KZCommand::KZCmdCancelApplyOutlookAccount, this, [this](const Content&) {
    if (m_discovery) m_discovery->cancel();
  });
  host->handle(KZCommand::KZCmdSinkOutlookAccountCredential, this, [this](const Content& content) {
    if (m_discovery) m_discovery->sinkCredential(content.value_or(Dictionary()));
  });
  // The refusal has ended the discovery already; one that runs by now is another.
  host->handle(KZCommand::KZCmdExchDiscoverAuthFailure, this, [this](const Content&) {
    Q_EMIT message(QStringLiteral("Detect again to enter another user name or password."));
  });
  connect(network, &ServiceNetwork::changed, this, [this] {
    if (!m_discovery || m_network->isReady()) return;
    m_discovery->fail({.kind = FailureKind::Explained, .detail = m_network->missing()});
  });
}

void CompanionExchange::start(const Dictionary& content) {
  if (m_discovery) {
    m_discovery->stop();
    // A signal of its own may have led here.
    m_discovery.release()->deleteLater();
  }
  ExchangeConfiguration configuration = m_network->exchange();
  configuration.prompt = m_question.prompt();
  m_discovery = std::make_unique<ExchangeDiscovery>(configuration, content);
  connect(m_discovery.get(), &ExchangeDiscovery::notified, m_host, &PluginHost::notify);
  connect(m_discovery.get(), &ExchangeDiscovery::message, this, &CompanionExchange::message);
}
