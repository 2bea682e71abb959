#include "companion/app/CompanionExchange.h"

#include "companion/runtime/PluginHost.h"

CompanionExchange::CompanionExchange(PluginHost* host, ServiceNetwork* network)
    : m_network(network), m_discovery({}) {
  host->handle(KZCommand::KZCmdApplyOutlookAccount, this,
               [this](const Content& content) { m_discovery.start(content.value_or(Dictionary())); });
  host->handle(KZCommand::KZCmdCancelApplyOutlookAccount, this,
               [this](const Content&) { m_discovery.cancel(); });
  host->handle(KZCommand::KZCmdSinkOutlookAccountCredential, this, [this](const Content& content) {
    m_discovery.sinkCredential(content.value_or(Dictionary()));
  });
  host->handle(KZCommand::KZCmdExchDiscoverAuthFailure, this,
               [this](const Content&) { m_discovery.notifyAuthFailure(); });
  connect(&m_discovery, &ExchangeDiscovery::notified, this,
          [host](KZNotify index, const Dictionary& content) { host->notify(index, content); });
  connect(&m_discovery, &ExchangeDiscovery::message, this, &CompanionExchange::message);
  connect(network, &ServiceNetwork::changed, this, &CompanionExchange::useNetwork);
  useNetwork();
}

void CompanionExchange::useNetwork() {
  ExchangeConfiguration configuration = m_network->exchange();
  configuration.prompt = m_question.prompt();
  m_discovery.setConfiguration(configuration);
  if (m_network->isReady()) return;
  m_discovery.fail({.kind = FailureKind::Explained, .detail = m_network->missing()});
}
