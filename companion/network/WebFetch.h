#pragma once

#include <QNetworkAccessManager>
#include <QSet>
#include <QUrl>
#include <functional>
#include <memory>

#include "companion/network/HttpCall.h"
#include "companion/network/WebTrouble.h"

struct WebAnswer {
  QString failure = {};  // a sentence for the user; empty where the answer is good
  QUrl address = {};     // where it came from in the end
  QByteArray body = {};
};

// Reads one address and follows where it leads, as long as that is safe and not too far. Not for a question
// with a body or a credential, which would follow, too. One at a time; a new one, cancel and the end of the
// object end it unanswered.
class WebFetch final {
 public:
  // A sentence that says why the address may not be asked; empty where it may.
  using Refusal = std::function<QString(const QUrl& address)>;
  using Done = std::function<void(const WebAnswer&)>;

  WebFetch(NetworkConfiguration configuration, Refusal refusal);
  ~WebFetch();
  Q_DISABLE_COPY_MOVE(WebFetch)

  // Returns before `done` is called.
  void start(const HttpQuestion& question, Done done);
  void cancel();
  bool isRunning() const { return m_call != nullptr; }

 private:
  void ask(const QUrl& address);
  void read(const HttpAnswer& answer);
  void fail(WebTrouble trouble);
  void settle(const WebAnswer& answer);

  const NetworkConfiguration m_configuration;
  const Refusal m_refusal;
  QNetworkAccessManager m_network;
  std::unique_ptr<HttpCall> m_call;
  HttpQuestion m_question;
  QSet<QUrl> m_visited;
  Done m_done;
};
