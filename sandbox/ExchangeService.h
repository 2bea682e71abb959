#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <functional>

#include "sandbox/HttpMessage.h"

namespace sandbox {

// The responses of the Exchange servers of all accounts: Autodiscover and the next meetings. Faults that
// sites have as well are in Sandbox.
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
  int m_refusals = 0;  // of the first account
};

// The service records by name, for clients that use no name server.
QJsonObject describeServiceRecords();

}  // namespace sandbox
