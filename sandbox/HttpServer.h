#pragma once

#include <QHash>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QUrl>
#include <functional>
#include <memory>

#include "sandbox/HttpMessage.h"

class QTcpSocket;

namespace sandbox {

// A small HTTP server on the loopback address; one request a connection. Lives on the thread that made it.
class HttpServer final {
 public:
  using Handler = std::function<HttpResponse(const HttpRequest&)>;

  HttpServer();
  // Speaks TLS with the certificate and key that are in there.
  explicit HttpServer(const QSslConfiguration& tls);
  ~HttpServer();
  Q_DISABLE_COPY_MOVE(HttpServer)

  [[nodiscard]] bool listen(quint16 port = 0);
  QUrl url() const;

  // Whoever asks for this very path is answered by the handler; the last one set counts.
  void handle(const QString& path, const Handler& handler);
  // For every other path.
  void handleOthers(const Handler& handler) { m_othersHandler = handler; }

 private:
  void watch();
  void accept();
  void read(QTcpSocket* socket);
  HttpResponse respond(const HttpRequest& request) const;

  std::unique_ptr<QTcpServer> m_server;
  QHash<QString, Handler> m_handlers;
  Handler m_othersHandler;
};

}  // namespace sandbox
