#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "companion/exchange/SandboxDescription.h"
#include "companion/network/HttpCall.h"

// The companion's network, and which servers it may use now. Main thread only.
class ServiceNetwork final : public QObject {
  Q_OBJECT

 public:
  // With NetworkReach::Sandbox no request leaves the sandbox. `configuration` is for the other servers; they
  // are asked once the sandbox is there or lost, so that no name server hears of the sandbox's own hosts.
  explicit ServiceNetwork(NetworkReach reach, ExchangeConfiguration configuration = {});

  void useSandbox(const SandboxDescription& sandbox);
  void loseSandbox(const QString& reason);  // a sentence

  // Whether requests are possible now. If not, `missing` is the reason, in a sentence.
  bool isReady() const {
    return m_state == State::Running || (m_state == State::Lost && m_reach == NetworkReach::Network);
  }
  const QString& missing() const { return m_missing; }
  // Why this address must not be used, in a sentence; empty when it may be.
  QString refusalOf(const QUrl& address) const;

  // Both are limited to the servers that may be used now, and must not outlive this object.
  ExchangeConfiguration exchange() const;
  std::unique_ptr<HttpCall> fetch(const QUrl& address, HttpCall::Done done);

 Q_SIGNALS:
  void changed();

 private:
  enum class State { Starting, Running, Lost };

  const NetworkReach m_reach;
  const ExchangeConfiguration m_configuration;
  State m_state = State::Starting;
  SandboxDescription m_sandbox;  // empty while it is not running
  QString m_sandboxDomain = QStringLiteral("sandbox.example");
  QString m_missing;
};

// Opens the page in the user's browser. Returns a sentence for the user where no browser opens it, else null.
[[nodiscard]] QString openInBrowser(const QUrl& page);
