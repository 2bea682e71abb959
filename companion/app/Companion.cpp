#include "companion/app/Companion.h"

#include <QDesktopServices>
#include <QTimer>

#include "companion/exchange/StandardExchange.h"
#include "companion/inspector/InspectorView.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

const QString kSignedInUri = QStringLiteral("http://127.0.0.1/signed-in");

QString introduction(CompanionExchange::Reach reach) {
  if (reach == CompanionExchange::Reach::Network) {
    return QStringLiteral(
        "Exchange is looked for in the network and in a sandbox on this machine; what a meeting service "
        "would answer is invented here.");
  }
  return QStringLiteral(
      "Demonstration: everything that a meeting service would answer is invented here. Exchange is looked "
      "for in a sandbox on this machine.");
}

}  // namespace

Companion::Companion(const CompanionOptions& options)
    : m_border([](const QUrl& url) { return QDesktopServices::openUrl(url); }),
      m_logging(m_border.addObserver(
          [this](const Crossing& crossing) { m_log.record(InspectorEvent::of(crossing)); })),
      m_services(&m_border),
      m_window(&m_border, &m_services),
      m_exchange(&m_border, options.reach, standardExchangeConfiguration(options.clientId, kSignedInUri)) {
  connect(&KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::valueChanged, &m_log,
          [this](const QString& key, const QVariant& before, const QVariant& after) {
            m_log.record(InspectorEvent::ofStoreWrite(key, before, after));
          });
  createPages();
  m_window.showNotice(introduction(options.reach));
  connect(&m_services, &DemoServices::noticed, &m_window, &CompanionWindow::showNotice);
  connect(&m_exchange, &CompanionExchange::noticed, &m_window, &CompanionWindow::showNotice);
  connectSandbox();
}

Companion::~Companion() {
  // What the plug-in's end still tells must find its observers.
  m_border.shutDown();
}

void Companion::createPages() {
  auto* inspector = new InspectorView(&m_log);
  connect(inspector, &InspectorView::noticed, &m_window, &CompanionWindow::showNotice);
  m_window.addPage(QStringLiteral("Inspector"), inspector);
}

void Companion::connectSandbox() {
  connect(&m_sandbox, &Sandbox::ready, this, [this](const QJsonObject& description) {
    m_exchange.useSandbox(description);
    m_window.offerAccounts(sandboxAccounts(description));
  });
  connect(&m_sandbox, &Sandbox::failed, this, [this](const QString& reason) {
    m_exchange.loseSandbox(reason);
    m_window.offerAccounts({});
  });
}

void Companion::comeToFront() {
  m_window.comeToFront();
  m_window.showPreferences();
}

void Companion::start(demouser::Variant variant) {
  m_window.show();
  m_window.become(variant);
  m_window.showPreferences();
  // The windows come first.
  QTimer::singleShot(0, &m_sandbox, [this] { m_sandbox.start(Sandbox::programPath()); });
}
