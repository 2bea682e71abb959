#include "sandbox/HttpServer.h"

#include <QSslServer>
#include <QTcpSocket>

#include "sandbox/Responses.h"

namespace sandbox {

namespace {

constexpr qsizetype longestRequest = 1024 * 1024;

std::unique_ptr<QTcpServer> encryptedServer(const QSslConfiguration& tls) {
  auto server = std::make_unique<QSslServer>();
  server->setSslConfiguration(tls);
  return server;
}

}  // namespace

HttpServer::HttpServer() : HttpServer(std::make_unique<QTcpServer>()) {}

HttpServer::HttpServer(const QSslConfiguration& tls) : HttpServer(encryptedServer(tls)) {}

HttpServer::HttpServer(std::unique_ptr<QTcpServer> server) : m_server(std::move(server)) {
  QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
                   [this] { accept(); });
}

HttpServer::~HttpServer() = default;

bool HttpServer::listen(quint16 port) {
  return m_server->listen(QHostAddress::LocalHost, port);
}

bool HttpServer::isEncrypted() const {
  return qobject_cast<const QSslServer*>(m_server.get()) != nullptr;
}

QUrl HttpServer::url() const {
  return QUrl(QStringLiteral("%1://127.0.0.1:%2")
                  .arg(isEncrypted() ? QStringLiteral("https") : QStringLiteral("http"))
                  .arg(port()));
}

void HttpServer::handle(const QString& path, const Handler& handler) {
  m_handlers.insert(path, handler);
}

void HttpServer::accept() {
  while (QTcpSocket* const socket = m_server->nextPendingConnection()) {
    QObject::connect(socket, &QTcpSocket::readyRead, m_server.get(), [this, socket] { read(socket); });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    // The first bytes may have arrived with the end of the handshake.
    if (socket->bytesAvailable() > 0) read(socket);
  }
}

void HttpServer::read(QTcpSocket* socket) {
  const QByteArray data = socket->peek(longestRequest);
  std::optional<HttpRequest> request = HttpRequest::parse(data);
  if (!request) {
    if (data.size() >= longestRequest) socket->abort();
    return;
  }
  socket->readAll();
  request->isEncrypted = isEncrypted();
  const Handler handler = m_handlers.value(request->path, m_othersHandler);
  deliver(socket, handler ? handler(*request) : notFound());
}

}  // namespace sandbox
