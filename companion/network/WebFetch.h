#pragma once

#include <QNetworkAccessManager>
#include <QSet>
#include <QUrl>
#include <functional>
#include <memory>

#include "companion/network/HttpCall.h"

struct WebPage {
  NetworkFailure failure = {};
  QUrl address = {};  // where it came from in the end
  QByteArray body = {};
};

// Reads one address and follows its redirects, as long as that is safe and not too far. One at a time; a new
// one and the end of the object end it without a result.
class WebFetch final {
 public:
  using Done = std::function<void(const WebPage&)>;

  explicit WebFetch(NetworkConfiguration configuration) : m_configuration(std::move(configuration)) {}
  Q_DISABLE_COPY_MOVE(WebFetch)

  // Returns before `done` is called, which may delete the object.
  void start(const QUrl& address, Done done);

 private:
  void request(const QUrl& address);
  void read(const HttpResponse& response);
  void fail(FailureKind kind) { settle({.failure = {.kind = kind, .host = m_address.host()}}); }
  void settle(WebPage page);

  const NetworkConfiguration m_configuration;
  QNetworkAccessManager m_network;
  std::unique_ptr<HttpCall> m_call;
  QUrl m_address;
  QSet<QUrl> m_visited;
  Done m_done;
};
