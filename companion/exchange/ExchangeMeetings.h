#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QUrl>
#include <memory>

#include "companion/exchange/ExchangeConfiguration.h"
#include "companion/exchange/MeetingMessage.h"
#include "companion/network/HttpCall.h"
#include "host/KZFoundation/Dictionary.h"

// The next meetings of an applied Exchange account. One question at a time; a new one ends the one before it
// unanswered. Main thread only.
class ExchangeMeetings final : public QObject {
  Q_OBJECT

 public:
  explicit ExchangeMeetings(ExchangeConfiguration configuration)
      : m_configuration(std::move(configuration)) {}

  // `exchange` is the account as discovery reported it. `token` is for an online account; the credential of
  // any other is asked for by a challenge. `days` is how far ahead to look.
  void list(const Dictionary& exchange, const QString& token, int days);
  void cancel() { m_call.reset(); }

 Q_SIGNALS:
  void listed(const QList<ExchangeMeeting>& meetings);  // the next first
  void failed(const QString& message);                  // for the user

 private:
  void ask(const QByteArray& authorization);
  void read(const HttpAnswer& answer, bool isAuthorized);
  void readChallenge(const HttpAnswer& answer, bool isAuthorized);
  void askWithSavedCredential();
  void fail(const QString& pattern);

  const ExchangeConfiguration m_configuration;
  QNetworkAccessManager m_network;
  std::unique_ptr<HttpCall> m_call;
  QUrl m_address;
  int m_days = 0;
  bool m_isOnline = false;
};
