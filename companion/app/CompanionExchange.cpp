#include "companion/app/CompanionExchange.h"

#include <QPushButton>

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

CompanionExchange::~CompanionExchange() {
  delete m_question.data();
}

void CompanionExchange::useNetwork() {
  ExchangeConfiguration configuration = m_network->exchange();
  configuration.prompt = {
      .ask = [this](const QUrl& target,
                    const RedirectPrompt::Answer& answer) { askAboutRedirect(target, answer); },
      .withdraw = [this] { delete m_question.data(); }};
  m_discovery.setConfiguration(configuration);
  if (m_network->isReady()) return;
  m_discovery.fail({.kind = FailureKind::Explained, .detail = m_network->missing()});
}

void CompanionExchange::askAboutRedirect(const QUrl& target, const RedirectPrompt::Answer& answer) {
  constexpr qsizetype kLongestAddress = 200;
  const QString address =
      target.toDisplayString(QUrl::RemoveUserInfo | QUrl::RemoveQuery).left(kLongestAddress);
  auto* box = new QMessageBox;
  m_question = box;
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setModal(false);
  box->setWindowTitle(QStringLiteral("Exchange"));
  box->setTextFormat(Qt::PlainText);
  box->setText(QStringLiteral("May %1 be asked for your Exchange account?").arg(target.host()));
  box->setInformativeText(
      QStringLiteral("The search leads to %1. Allow it only if you know this server: your email address, and "
                     "later your password, may be sent to it.")
          .arg(address));
  const QPushButton* allow = box->addButton(QStringLiteral("Allow"), QMessageBox::AcceptRole);
  box->setDefaultButton(box->addButton(QStringLiteral("Do not allow"), QMessageBox::RejectRole));
  connect(box, &QMessageBox::finished, box, [box, allow, answer] { answer(box->clickedButton() == allow); });
  box->show();
  box->raise();
}
