#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <functional>

#include "companion/exchange/ExchangeConfiguration.h"

class QNetworkReply;
class QNetworkRequest;

struct HttpAnswer {
  enum class Trouble {
    None,
    HostUnknown,
    Unreachable,
    TooSlow,
    TooLong,
    Certificate,
    CertificateOfOtherName
  };

  Trouble trouble = Trouble::None;  // with any other, no whole answer came
  int status = 0;
  QUrl location = {};         // absolute; empty where the answer sends nowhere
  QByteArray challenge = {};  // what the server wants to know before it answers
  QByteArray body = {};
};

struct HttpQuestion {
  QUrl address;
  QByteArray body = {};  // empty: nothing is sent, the address is only read
  QByteArray contentType = QByteArrayLiteral("text/xml; charset=utf-8");
  QByteArray authorization = {};
};

// One request, bounded in time and size. Follows no redirect, keeps no cookies and answers no challenge, so
// that what is sent stays with the host it was meant for and is sent once. Destroying it ends it unanswered.
class HttpCall final : public QObject {
 public:
  using Done = std::function<void(const HttpAnswer&)>;

  HttpCall(QNetworkAccessManager& network, const ExchangeConfiguration& configuration);
  ~HttpCall() override;

  void start(const HttpQuestion& question, Done done);

 private:
  QNetworkReply* send(QNetworkRequest request, const HttpQuestion& question);
  QNetworkRequest requestFor(const HttpQuestion& question) const;
  bool isTooLong() const;
  void readAnswer();
  HttpAnswer::Trouble trouble() const;
  void settle(const HttpAnswer& answer);

  QNetworkAccessManager& m_network;
  const ExchangeConfiguration& m_configuration;
  QUrl m_address;
  QTimer m_deadline;
  QPointer<QNetworkReply> m_reply;
  bool m_isOtherName = false;
  Done m_done;
};

// The names of the ways to sign in that a challenge offers, in small letters.
QList<QByteArray> offeredSchemes(const QByteArray& challenge);
