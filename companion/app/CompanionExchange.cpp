#include "companion/app/CompanionExchange.h"

#include <utility>

#include "companion/exchange/EmailDomain.h"
#include "companion/exchange/SandboxExchange.h"
#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"

CompanionExchange::CompanionExchange(PluginHost* host, Reach reach, ExchangeConfiguration network)
    : m_host(host),
      m_reach(reach),
      m_network(std::move(network)),
      m_missing(QStringLiteral("The sandbox is still starting. Try again in a moment.")) {
  renewDiscovery({});
  host->handle(KZCommand::KZCmdApplyOutlookAccount, this,
               [this](const Content& content) { search(content.value_or(Dictionary())); });
  host->handle(KZCommand::KZCmdCancelApplyOutlookAccount, this,
               [this](const Content&) { m_discovery->cancel(); });
  host->handle(KZCommand::KZCmdSinkOutlookAccountCredential, this, [this](const Content& content) {
    m_discovery->sinkCredential(content.value_or(Dictionary()));
  });
  host->handle(KZCommand::KZCmdExchDiscoverAuthFailure, this,
               [this](const Content&) { m_discovery->notifyAuthFailure(); });
}

CompanionExchange::~CompanionExchange() = default;

void CompanionExchange::useSandbox(const QJsonObject& description) {
  m_sandbox = description;
  renewDiscovery(QStringLiteral("The sandbox has started only now. Try again."));
}

void CompanionExchange::loseSandbox(const QString& reason) {
  m_sandbox = {};
  m_missing = QStringLiteral("The sandbox is not running.");
  renewDiscovery(reason);
  Q_EMIT noticed(reason);
}

void CompanionExchange::renewDiscovery(const QString& reason) {
  const bool isSearching = m_discovery && m_discovery->isRunning();
  ExchangeConfiguration configuration = withSandbox(m_network, m_sandbox);
  configuration.prompt = m_question.prompt();
  m_discovery = std::make_unique<ExchangeDiscovery>(std::move(configuration));
  connect(m_discovery.get(), &ExchangeDiscovery::notified, this,
          [this](KZNotify index, const Dictionary& content) { m_host->notify(index, content); });
  connect(m_discovery.get(), &ExchangeDiscovery::noticed, this,
          [this](const QString& text) { Q_EMIT noticed(text + u'.'); });
  if (isSearching) reportFailure(reason);
}

void CompanionExchange::search(const Dictionary& content) {
  const QString refusal = refusalOf(content);
  if (refusal.isEmpty()) return m_discovery->start(content);
  m_discovery->cancel();
  // Whoever sends the command is not to be answered before it has returned.
  QMetaObject::invokeMethod(
      this, [this, refusal] { reportFailure(refusal); }, Qt::QueuedConnection);
}

QString CompanionExchange::refusalOf(const Dictionary& content) const {
  if (m_reach == Reach::Network) return {};
  if (m_sandbox.isEmpty()) return m_missing;
  const QString sandboxDomain = m_sandbox.value(QLatin1String("domain")).toString();
  const QString domain = emailDomain(textValue(content, QRT_ExchangeDiscover_Email).trimmed());
  // What is no address at all gets the discovery's own answer.
  if (domain.isEmpty() || isWithinDomain(domain, sandboxDomain)) return {};
  return QStringLiteral("Only the sandbox is asked here: use one of the accounts on the page Try out.");
}

void CompanionExchange::reportFailure(const QString& message) {
  m_host->notify(
      KZNotify::KZNotifyResolveExchangeDone,
      Dictionary{{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, message}}}});
}
