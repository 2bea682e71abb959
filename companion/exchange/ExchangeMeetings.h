#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>
#include <memory>

#include "companion/exchange/ExchangeConfiguration.h"
#include "companion/exchange/MeetingMessage.h"
#include "companion/network/HttpCall.h"
#include "host/KZFoundation/Dictionary.h"

// Requests the next meetings of an applied Exchange account, once. Deleting it ends the request without a
// result. Main thread only.
class ExchangeMeetings final : public QObject {
  Q_OBJECT

 public:
  explicit ExchangeMeetings(ExchangeConfiguration configuration)
      : m_configuration(std::move(configuration)) {}

  // `exchange` is the account as discovery reported it. `token` is for an online account; the credential of
  // any other comes by a challenge. `days` is how far ahead to look.
  void list(const Dictionary& exchange, const QString& token, int days);

 Q_SIGNALS:
  void listed(const QList<ExchangeMeeting>& meetings);  // the next first
  void failed(const QString& message);                  // for the user

 private:
  void request(const QByteArray& authorization);
  void read(const HttpResponse& response, bool isAuthorized);
  void readChallenge(const HttpResponse& response, bool isAuthorized);
  void requestWithSavedCredential();
  void fail(FailureKind kind);

  const ExchangeConfiguration m_configuration;
  QNetworkAccessManager m_network;
  std::unique_ptr<HttpCall> m_call;
  QUrl m_address;
  int m_days = 0;
  bool m_isOnline = false;
};

// Where the account's meetings are; empty where it has no address that a credential may be sent to.
QUrl meetingAddress(const Dictionary& exchange);
