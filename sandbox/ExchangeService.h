#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <functional>

#include "sandbox/ExchangeCases.h"
#include "sandbox/HostServers.h"

namespace sandbox {

// Plays the Exchange servers of every host below sandbox.example: discovery and the next meetings. Not for
// anything but trying out.
class ExchangeService final {
 public:
  struct Visit {
    QString host;
    QString path;
    QByteArray method;
    QByteArray authorization;
    bool isEncrypted = false;
  };
  using TokenCheck = std::function<bool(const QString& accessToken)>;

  // `authorities` is the address that the authorities lie below where online users sign in, `isGranted` knows
  // their tokens.
  ExchangeService(QString authorities, TokenCheck isGranted);
  Q_DISABLE_COPY_MOVE(ExchangeService)

  // False where there is no port or no certificate.
  [[nodiscard]] bool listen();

  // What a host needs to know in order to find its way here.
  QJsonObject describe() const;

  // Every request, oldest first.
  const QList<Visit>& visits() const { return m_visits; }

 private:
  void handle(HttpServer& server, bool isEncrypted);
  HttpResponse discover(const HttpRequest& request, bool isEncrypted);
  HttpResponse discoverPlainly(const QString& host) const;
  HttpResponse discoverOnPremise(const HttpRequest& request, const QString& host);
  HttpResponse listMeetings(const HttpRequest& request);
  QString note(const HttpRequest& request, bool isEncrypted);
  bool isAllowed(const QByteArray& authorization);

  QString m_authorities;
  TokenCheck m_isGranted;
  HostServers m_servers;
  int m_refusals = 0;  // of the one account that can get in
  QList<Visit> m_visits;
};

}  // namespace sandbox
