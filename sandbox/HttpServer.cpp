#include "sandbox/HttpServer.h"

#include <QHostAddress>
#include <QSslServer>
#include <QSslSocket>
#include <QTcpSocket>
#include <QTimer>
#include <memory>
#include <optional>

#include "sandbox/Answers.h"
#include "sandbox/HttpDelivery.h"

namespace sandbox {

namespace {

constexpr qsizetype longestRequest = 1024 * 1024;

// Nothing while the request is not complete.
std::optional<HttpRequest> parseRequest(const QByteArray& data) {
  const qsizetype headEnd = data.indexOf("\r\n\r\n");
  if (headEnd < 0) return {};
  QList<QByteArray> lines = data.first(headEnd).replace("\r\n", "\n").split('\n');
  const QList<QByteArray> words = lines.takeFirst().split(' ');
  HttpRequest request;
  request.method = words.value(0);
  const QUrl target = QUrl::fromEncoded(words.value(1));
  request.path = target.path();
  request.query = QUrlQuery(target.query(QUrl::FullyEncoded));
  for (const QByteArray& line : lines) {
    const qsizetype colon = line.indexOf(':');
    if (colon > 0) request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
  }
  request.body = data.sliced(headEnd + 4);
  if (request.body.size() < request.headers.value("content-length").toLongLong()) return {};
  return request;
}

}  // namespace

HttpServer::HttpServer() : m_server(std::make_unique<QTcpServer>()) {
  watch();
}

HttpServer::HttpServer(const QSslConfiguration& tls) {
  auto server = std::make_unique<QSslServer>();
  server->setSslConfiguration(tls);
  m_server = std::move(server);
  watch();
}

void HttpServer::watch() {
  QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
                   [this] { accept(); });
}

HttpServer::~HttpServer() = default;

bool HttpServer::listen(quint16 port) {
  return m_server->listen(QHostAddress::LocalHost, port);
}

QUrl HttpServer::url() const {
  const bool isSecure = qobject_cast<const QSslServer*>(m_server.get()) != nullptr;
  return QUrl(QStringLiteral("%1://127.0.0.1:%2")
                  .arg(isSecure ? QStringLiteral("https") : QStringLiteral("http"))
                  .arg(m_server->serverPort()));
}

void HttpServer::handle(const QString& path, const Handler& handler) {
  m_handlers.insert(path, handler);
}

void HttpServer::accept() {
  while (QTcpSocket* const socket = m_server->nextPendingConnection()) {
    QObject::connect(socket, &QTcpSocket::readyRead, m_server.get(), [this, socket] { read(socket); });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    // The first bytes may have come with the handshake's last.
    if (socket->bytesAvailable() > 0) read(socket);
  }
}

void HttpServer::read(QTcpSocket* socket) {
  const QByteArray data = socket->peek(longestRequest);
  const std::optional<HttpRequest> request = parseRequest(data);
  if (!request) {
    if (data.size() >= longestRequest) socket->abort();
    return;
  }
  socket->readAll();
  const HttpResponse response = respond(*request);
  if (response.delay.count() == 0) return deliver(socket, response);
  QTimer::singleShot(response.delay, socket, [socket, response] { deliver(socket, response); });
}

HttpResponse HttpServer::respond(const HttpRequest& request) const {
  const Handler handler = m_handlers.value(request.path, m_othersHandler);
  return handler ? handler(request) : notHere();
}

}  // namespace sandbox
