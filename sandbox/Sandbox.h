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

// Plays every host below sandbox.example: Exchange and meeting services. An unencrypted server, an encrypted
// one and one that shows a certificate of another name play all of them. Only for trying things out.
class Sandbox final {
 public:
  struct Visit {
    QString host;
    QByteArray authorization;
    bool isEncrypted = false;
  };

  // `authorities` is the address that the sign-in authorities are below, `isGranted` knows their tokens.
  Sandbox(const QString& authorities, ExchangeService::TokenCheck isGranted);
  Q_DISABLE_COPY_MOVE(Sandbox)

  // False where there is no port or no certificate.
  [[nodiscard]] bool listen();

  // What a client needs to know to find its way here, and what there is to try.
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
