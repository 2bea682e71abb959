#include "companion/services/ServiceNetwork.h"

#include <utility>

#include "companion/network/WebAddress.h"
#include "companion/texts/CompanionText.h"
#include "host/KZUtility/KZWorkspace.h"

ServiceNetwork::ServiceNetwork(NetworkReach reach, ExchangeConfiguration configuration)
    : m_reach(reach),
      m_configuration(std::move(configuration)),
      m_missing(companionText("The sandbox is still starting. Try again in a moment.")) {}

void ServiceNetwork::useSandbox(const SandboxDescription& sandbox) {
  m_state = State::Running;
  m_sandbox = sandbox;
  m_sandboxDomain = sandbox.domain;
  Q_EMIT changed();
}

void ServiceNetwork::loseSandbox(const QString& reason) {
  m_state = State::Lost;
  m_sandbox = {};
  m_missing = companionText("%1 Start the companion again.").arg(reason);
  Q_EMIT changed();
}

QString ServiceNetwork::refusalOf(const QUrl& address) const {
  if (!isReady()) return m_missing;
  const bool isOfSandbox = isWithinDomain(address.host(), m_sandboxDomain);
  if (isOfSandbox && m_state == State::Lost) return m_missing;
  if (isOfSandbox || m_reach == NetworkReach::Network) return {};
  return companionText(
             "%1 is outside the sandbox and was not asked. Use an account or a site of the page Try out, or "
             "start the companion with --network.")
      .arg(address.host());
}

ExchangeConfiguration ServiceNetwork::exchange() const {
  ExchangeConfiguration configuration = m_configuration;
  // Their users would sign in outside the sandbox.
  if (m_reach == NetworkReach::Sandbox) configuration.onlineServices.clear();
  configuration.network.refusal = [this](const QUrl& address) { return refusalOf(address); };
  return m_sandbox.addedTo(std::move(configuration));
}

std::unique_ptr<HttpCall> ServiceNetwork::fetch(const QUrl& address, HttpCall::Done done) {
  return std::make_unique<HttpCall>(
      exchange().network, HttpRequest{.address = address, .redirects = Redirects::Follow}, std::move(done));
}

QString openInBrowser(const QUrl& page) {
  if (KZWorkspace::sharedWorkspace().openURL(page)) return {};
  return companionText("No browser opened %1. Open the address yourself.").arg(page.toDisplayString());
}
