#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QUrl>
#include <functional>

#include "companion/network/NetworkConfiguration.h"
#include "companion/network/NetworkFailure.h"

class QNetworkReply;
class QNetworkRequest;

struct HttpRequest {
  QUrl address;
  QByteArray body = {};  // empty: the address is only read
  QByteArray contentType = QByteArrayLiteral("text/xml; charset=utf-8");
  QByteArray authorization = {};
};

// Exactly one of these came: a failure, a challenge, a redirect, or a body (which may be empty).
struct HttpResponse {
  NetworkFailure failure = {};
  bool isChallenge = false;
  QList<QByteArray> challengeSchemes = {};  // the ways to sign in that it offers, in lower case
  QUrl redirect = {};                       // absolute
  QByteArray body = {};
};

// One request, bounded in time and size. Follows no redirect, keeps no cookies and answers no challenge, so
// that what is sent stays with the host it was meant for and is sent once. Deleting the call ends it without
// a response.
class HttpCall final : public QObject {
 public:
  using Done = std::function<void(const HttpResponse&)>;

  HttpCall(QNetworkAccessManager& network, const NetworkConfiguration& configuration);
  ~HttpCall() override;

  // Returns before `done` is called.
  void start(const HttpRequest& request, Done done);

 private:
  QNetworkReply* send(const HttpRequest& request);
  QNetworkRequest networkRequestFor(const HttpRequest& request) const;
  bool isTooLong() const;
  HttpResponse response() const;
  FailureKind connectionFailure() const;
  void fail(FailureKind kind) { settle({.failure = {.kind = kind, .host = m_address.host()}}); }
  void settle(const HttpResponse& response);

  QNetworkAccessManager& m_network;
  const NetworkConfiguration& m_configuration;
  QUrl m_address;
  QTimer m_deadline;
  QPointer<QNetworkReply> m_reply;
  bool m_isOtherName = false;
  Done m_done;
};
