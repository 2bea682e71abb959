#pragma once

#include <QByteArray>
#include <QObject>
#include <QSet>
#include <QUrl>
#include <functional>
#include <memory>

#include "companion/network/NetworkConfiguration.h"
#include "companion/network/NetworkFailure.h"

// Whether a redirect is reported, or followed as long as that is safe and not too far.
enum class Redirects { Report, Follow };

struct HttpRequest {
  QUrl address;
  QByteArray body = {};  // empty: the address is only read
  QByteArray authorization = {};
  Redirects redirects = Redirects::Report;
};

// Exactly one of these is set: a failure, a challenge, a redirect, or a body (which may be empty).
struct HttpResponse {
  NetworkFailure failure = {};
  bool isChallenge = false;                 // a failure where redirects are followed
  QList<QByteArray> challengeSchemes = {};  // the ways to sign in that it offers, in lower case
  QUrl redirect = {};                       // absolute
  QByteArray body = {};
  QUrl address = {};  // where it came from in the end
};

// One request, bounded in time and size. Keeps no cookies and answers no challenge, so that what is sent
// stays with the host it was meant for and is sent once. Deleting the call ends it without a response.
class HttpCall final : public QObject {
 public:
  using Done = std::function<void(const HttpResponse&)>;

  // `done` is called later, and may delete the call.
  HttpCall(const NetworkConfiguration& configuration, const HttpRequest& request, Done done);

 private:
  void follow(const QUrl& address);
  void request();
  ADHttpRequest httpRequest() const;
  HttpResponse read(const ADHttpResponse& response) const;
  HttpResponse failed(FailureKind kind) const;
  void fail(FailureKind kind) { settle(failed(kind)); }
  void settle(HttpResponse response);

  const NetworkConfiguration m_configuration;
  HttpRequest m_request;
  QSet<QUrl> m_visited;
  std::unique_ptr<ADHttpExchange> m_exchange;
  Done m_done;
};
