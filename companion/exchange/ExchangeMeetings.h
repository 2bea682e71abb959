#pragma once

#include <QDateTime>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>

#include "companion/exchange/ExchangeConfiguration.h"
#include "companion/network/HttpCall.h"
#include "host/KZFoundation/Dictionary.h"

struct ExchangeMeeting {
  QString subject;
  QDateTime start;  // in UTC
};

// Requests the next meetings of an applied Exchange account, once. Deleting it ends the request without a
// result. Main thread only.
class ExchangeMeetings final {
 public:
  // The meetings, the next first, or why there are none, in a sentence.
  using Done = std::function<void(const QList<ExchangeMeeting>& meetings, const QString& failure)>;

  ExchangeMeetings(const ExchangeConfiguration& configuration, Done done)
      : m_configuration(configuration), m_done(std::move(done)) {}
  Q_DISABLE_COPY_MOVE(ExchangeMeetings)

  // `exchange` is the account as discovery reported it. `token` is for an online account; the credential of
  // any other comes by a challenge. `days` is how far ahead to look.
  void list(const Dictionary& exchange, const QString& token, int days);

 private:
  void request(const QByteArray& authorization);
  void read(const HttpResponse& response, bool isAuthorized);
  void readChallenge(const HttpResponse& response, bool isAuthorized);
  void fail(FailureKind kind);

  const ExchangeConfiguration m_configuration;
  const Done m_done;
  std::unique_ptr<HttpCall> m_call;
  QUrl m_address;
  int m_days = 0;
  bool m_isOnline = false;
};

// Where the account's meetings are; empty where it has no address that a credential may be sent to.
QUrl meetingAddress(const Dictionary& exchange);

// At most 100 meetings, by their start; those without a start are left out. Nothing for anything but a
// successful response of the web service.
std::optional<QList<ExchangeMeeting>> readMeetings(const QByteArray& xml);
