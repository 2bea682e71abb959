#include "companion/app/CompanionExchange.h"

#include <utility>

#include "companion/exchange/EmailDomain.h"
#include "companion/exchange/SandboxExchange.h"
#include "companion/runtime/Border.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"

CompanionExchange::CompanionExchange(Border* border, Reach reach, ExchangeConfiguration network)
    : m_border(border),
      m_reach(reach),
      m_network(std::move(network)),
      m_missing(QStringLiteral("The sandbox is still starting. Try again in a moment.")) {
  renewDiscovery({});
  connect(border, &Border::commandSent, this, &CompanionExchange::answer);
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
          [this](KZNotify index, const Dictionary& content) {
            m_border->notify(static_cast<quint32>(index), content);
          });
  connect(m_discovery.get(), &ExchangeDiscovery::noticed, this,
          [this](const QString& text) { Q_EMIT noticed(text + u'.'); });
  if (isSearching) reportFailure(reason);
}

void CompanionExchange::answer(quint64 command, const Content& content) {
  switch (static_cast<KZCommand>(command)) {
    case KZCommand::KZCmdApplyOutlookAccount:
      return search(content.value_or(Dictionary()));
    case KZCommand::KZCmdCancelApplyOutlookAccount:
      return m_discovery->cancel();
    case KZCommand::KZCmdSinkOutlookAccountCredential:
      return m_discovery->sinkCredential(content.value_or(Dictionary()));
    case KZCommand::KZCmdExchDiscoverAuthFailure:
      return m_discovery->notifyAuthFailure();
    default:
      return;
  }
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
  m_border->notify(
      static_cast<quint32>(KZNotify::KZNotifyResolveExchangeDone),
      Dictionary{{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, message}}}});
}
