#include "companion/app/CompanionExchange.h"

#include <QPushButton>
#include <QShortcut>

#include "companion/runtime/PluginHost.h"
#include "companion/texts/CompanionText.h"

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
    Q_EMIT message(companionText("Detect again to enter another user name or password."));
  });
  connect(network, &ServiceNetwork::changed, this, [this] {
    if (!m_discovery || m_network->isReady()) return;
    m_discovery->fail({.kind = FailureKind::Explained, .detail = m_network->missing()});
  });
}

CompanionExchange::~CompanionExchange() {
  delete m_question.data();
}

void CompanionExchange::start(const Dictionary& content) {
  if (m_discovery) {
    m_discovery->stop();
    // A signal of its own may have led here.
    m_discovery.release()->deleteLater();
  }
  ExchangeConfiguration configuration = m_network->exchange();
  configuration.prompt = {
      .ask = [this](const QUrl& target,
                    const RedirectPrompt::Answer& answer) { askAboutRedirect(target, answer); },
      .withdraw = [this] { delete m_question.data(); }};
  m_discovery = std::make_unique<ExchangeDiscovery>(configuration, content);
  connect(m_discovery.get(), &ExchangeDiscovery::notified, m_host, &PluginHost::notify);
  connect(m_discovery.get(), &ExchangeDiscovery::message, this, &CompanionExchange::message);
}

void CompanionExchange::askAboutRedirect(const QUrl& target, const RedirectPrompt::Answer& answer) {
  constexpr qsizetype kLongestAddress = 200;
  const QString address =
      target.toDisplayString(QUrl::RemoveUserInfo | QUrl::RemoveQuery).left(kLongestAddress);
  auto* box = new QMessageBox;
  m_question = box;
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setModal(false);
  box->setWindowTitle(companionText("Exchange"));
  box->setTextFormat(Qt::PlainText);
  box->setText(companionText("May %1 be asked for your Exchange account?").arg(target.host()));
  box->setInformativeText(
      companionText("The search leads to %1. Allow it only if you know this server: your email address, and "
                    "later your password, may be sent to it.")
          .arg(address));
  const QPushButton* allow = box->addButton(companionText("&Allow"), QMessageBox::AcceptRole);
  box->setDefaultButton(box->addButton(companionText("&Do not allow"), QMessageBox::RejectRole));
  connect(box, &QMessageBox::finished, box, [box, allow, answer] { answer(box->clickedButton() == allow); });
  connect(new QShortcut(Qt::CTRL | Qt::Key_W, box), &QShortcut::activated, box, &QDialog::reject);
  box->show();
  box->raise();
}
