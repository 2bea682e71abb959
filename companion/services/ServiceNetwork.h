#pragma once

#include <QJsonObject>
#include <QObject>
#include <QString>
#include <memory>

#include "companion/network/WebFetch.h"

// How the services reach meeting sites, and which of them they may ask. Main thread only.
class ServiceNetwork final : public QObject {
  Q_OBJECT

 public:
  // With NetworkReach::Sandbox nobody outside the sandbox is asked.
  explicit ServiceNetwork(NetworkReach reach, NetworkConfiguration configuration = {});

  // `description` is the "site" of what kz-sandbox prints first.
  void useSandbox(const QJsonObject& description);
  void loseSandbox();

  // Why nobody may be asked there now, in a sentence; empty where somebody may.
  QString refusalOf(const QUrl& address) const;
  bool mayAsk(const QUrl& address) const { return refusalOf(address).isEmpty(); }
  bool isReady() const { return m_reach == NetworkReach::Network || !m_sandbox.isEmpty(); }
  const QString& missing() const { return m_missing; }  // why not, in a sentence, while it is not

  // Reaches what may be asked now; it learns of no later change. Must not outlive this.
  std::unique_ptr<WebFetch> fetch() const;

 Q_SIGNALS:
  void changed();

 private:
  const NetworkReach m_reach;
  const NetworkConfiguration m_configuration;
  QJsonObject m_sandbox;  // empty while it is not running
  QString m_missing;      // why not
};

// The address of a site: a host name, with a port where it is not the usual one. Empty for what is none.
QUrl siteAddress(const QString& site);
