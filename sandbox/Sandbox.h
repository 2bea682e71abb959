#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QList>
#include <QString>
#include <QUrl>
#include <memory>

#include "sandbox/Certificates.h"
#include "sandbox/ExchangeService.h"
#include "sandbox/HttpServer.h"

namespace sandbox {

// Plays every host below sandbox.example: Exchange and meeting services. Three servers play all of them: one
// without encryption, one with it, and one with a certificate of another name. For tests and trials only.
class Sandbox final {
 public:
  struct Visit {
    QString host;
    QByteArray authorization;
    bool isEncrypted = false;
  };

  // The sign-in authorities are below the address `authorities`; `isGranted` checks their tokens.
  Sandbox(const QString& authorities, ExchangeService::TokenCheck isGranted);
  Q_DISABLE_COPY_MOVE(Sandbox)

  // False when there is no port or no certificate.
  [[nodiscard]] bool listen();

  // What a client needs to connect, and the accounts and sites to try.
  QJsonObject describe() const;

  // Every request, oldest first.
  const QList<Visit>& visits() const { return m_visits; }

 private:
  HttpResponse respond(const HttpRequest& request);

  const QString m_authorities;
  ExchangeService m_exchange;
  Certificates m_certificates;
  HttpServer m_plain;
  std::unique_ptr<HttpServer> m_encrypted;
  std::unique_ptr<HttpServer> m_otherName;
  QList<Visit> m_visits;
};

}  // namespace sandbox
