#include "sandbox/HttpMessage.h"

#include <QSslSocket>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <memory>

namespace sandbox {

namespace {

constexpr std::chrono::milliseconds dripInterval{100};
constexpr qint64 floodBytes = 100 * 1024 * 1024;
constexpr qint64 floodChunk = 256 * 1024;

QByteArray responseHead(const HttpResponse& response, qint64 length) {
  QByteArray head = "HTTP/1.1 " + QByteArray::number(response.status) +
                    " -\r\nContent-Type: " + response.contentType +
                    "\r\nContent-Length: " + QByteArray::number(length) + "\r\nConnection: close\r\n";
  for (const auto& [name, value] : response.headers) head += name + ": " + value + "\r\n";
  return head + "\r\n";
}

void drip(QTcpSocket* socket, const QByteArray& bytes) {
  auto* const timer = new QTimer(socket);
  const auto sent = std::make_shared<qsizetype>(0);
  QObject::connect(timer, &QTimer::timeout, socket, [socket, bytes, sent] {
    if (*sent < bytes.size()) socket->write(bytes.constData() + (*sent)++, 1);
  });
  timer->start(dripInterval);
}

qint64 unsentBytes(const QTcpSocket* socket) {
  const auto* const encrypted = qobject_cast<const QSslSocket*>(socket);
  return socket->bytesToWrite() + (encrypted != nullptr ? encrypted->encryptedBytesToWrite() : 0);
}

void flood(QTcpSocket* socket) {
  const auto left = std::make_shared<qint64>(floodBytes);
  const auto pump = [socket, left] {
    if (*left <= 0 || unsentBytes(socket) > 0) return;
    const qint64 size = std::min(*left, floodChunk);
    *left -= size;
    socket->write(QByteArray(size, ' '));
  };
  QObject::connect(socket, &QTcpSocket::bytesWritten, socket, pump);
  if (auto* const encrypted = qobject_cast<QSslSocket*>(socket)) {
    QObject::connect(encrypted, &QSslSocket::encryptedBytesWritten, socket, pump);
  }
  pump();
}

void send(QTcpSocket* socket, const HttpResponse& response) {
  const qint64 length = response.body.size();
  switch (response.delivery) {
    case HttpResponse::Delivery::Whole:
      socket->write(responseHead(response, length) + response.body);
      return socket->disconnectFromHost();
    case HttpResponse::Delivery::Silent:
      return;
    case HttpResponse::Delivery::HangUp:
      return socket->disconnectFromHost();
    case HttpResponse::Delivery::Drip:
      return drip(socket, responseHead(response, length) + response.body);
    case HttpResponse::Delivery::CutOff:
      socket->write(responseHead(response, length + 100) + response.body);
      return socket->disconnectFromHost();
    case HttpResponse::Delivery::Flood:
      socket->write(responseHead(response, floodBytes));
      return flood(socket);
  }
}

}  // namespace

std::optional<HttpRequest> HttpRequest::parse(const QByteArray& data) {
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

QString HttpRequest::host() const {
  return QString::fromLatin1(headers.value("host")).section(QLatin1Char(':'), 0, 0);
}

QUrlQuery HttpRequest::form() const {
  QByteArray encoded = body;
  return QUrlQuery(QString::fromLatin1(encoded.replace('+', "%20")));
}

void deliver(QTcpSocket* socket, const HttpResponse& response) {
  if (response.delay.count() == 0) return send(socket, response);
  QTimer::singleShot(response.delay, socket, [socket, response] { send(socket, response); });
}

}  // namespace sandbox
