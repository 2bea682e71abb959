#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <functional>

#include "sandbox/HttpMessage.h"

namespace sandbox {

// The responses of the Exchange servers of all accounts: Autodiscover and the next meetings. Faults that
// sites have, too, are not among them.
class ExchangeService final {
 public:
  using TokenCheck = std::function<bool(const QString& accessToken)>;

  explicit ExchangeService(TokenCheck isGranted) : m_isGranted(std::move(isGranted)) {}

  HttpResponse respond(const HttpRequest& request);

 private:
  HttpResponse discover(const HttpRequest& request);
  HttpResponse discoverOnPremise(const HttpRequest& request);
  HttpResponse listMeetings(const HttpRequest& request);
  bool isAllowed(const QByteArray& authorization);

  const TokenCheck m_isGranted;
  int m_refusals = 0;  // of the one account that can get in
};

// The service records by their names, for clients that ask no name server.
QJsonObject describeServiceRecords();

}  // namespace sandbox
