#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSslConfiguration>
#include <QTcpServer>
#include <QUrl>
#include <QUrlQuery>
#include <chrono>
#include <functional>
#include <memory>
#include <utility>

class QTcpSocket;

namespace sandbox {

struct HttpRequest {
  QByteArray method;
  QString path;
  QUrlQuery query;
  QHash<QByteArray, QByteArray> headers;  // names in small letters
  QByteArray body;

  // The name that was asked for, without a port.
  QString host() const;
  QUrlQuery form() const;
};

struct HttpResponse {
  // How the answer goes out: as it should, or as a bad server or network would send it.
  enum class Delivery { Whole, Silent, HangUp, Drip, Paced, CutOff, Flood };

  int status = 200;
  QByteArray contentType = "application/json";
  QByteArray body = {};
  QList<std::pair<QByteArray, QByteArray>> headers = {};
  Delivery delivery = Delivery::Whole;
  qint64 floodBytes = 0;              // how much a flood sends
  std::chrono::milliseconds pace{0};  // how long the body of a paced answer takes
  std::chrono::milliseconds delay{0};
};

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
