#pragma once

#include <QHash>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QUrl>
#include <functional>
#include <memory>

#include "sandbox/HttpMessage.h"

namespace sandbox {

// A small HTTP server on the loopback address; one request per connection. Used on the thread that created
// it.
class HttpServer final {
 public:
  using Handler = std::function<HttpResponse(const HttpRequest&)>;

  HttpServer();
  // Uses TLS with the certificate and key in the configuration.
  explicit HttpServer(const QSslConfiguration& tls);
  ~HttpServer();
  Q_DISABLE_COPY_MOVE(HttpServer)

  [[nodiscard]] bool listen(quint16 port = 0);
  QUrl url() const;
  int port() const { return m_server->serverPort(); }

  // Handles requests for exactly this path; a later handler replaces an earlier one.
  void handle(const QString& path, const Handler& handler);
  // Handles every other path; without it they get status 404.
  void handleOthers(const Handler& handler) { m_othersHandler = handler; }

 private:
  explicit HttpServer(std::unique_ptr<QTcpServer> server);
  void accept();
  void read(QTcpSocket* socket);
  bool isEncrypted() const;

  const std::unique_ptr<QTcpServer> m_server;
  QHash<QString, Handler> m_handlers;
  Handler m_othersHandler;
};

}  // namespace sandbox
