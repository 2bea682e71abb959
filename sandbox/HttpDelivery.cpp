#include "sandbox/HttpDelivery.h"

#include <QSslSocket>
#include <QTcpSocket>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <memory>

#include "sandbox/HttpMessage.h"

namespace sandbox {

namespace {

constexpr std::chrono::milliseconds dripInterval{100};
constexpr std::chrono::milliseconds paceInterval{50};
constexpr qsizetype floodChunk = 256 * 1024;

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

qint64 bytesOnTheWay(const QTcpSocket* socket) {
  const auto* const encrypted = qobject_cast<const QSslSocket*>(socket);
  return socket->bytesToWrite() + (encrypted != nullptr ? encrypted->encryptedBytesToWrite() : 0);
}

void flood(QTcpSocket* socket, qint64 bytes) {
  const auto left = std::make_shared<qint64>(bytes);
  const auto pump = [socket, left] {
    if (*left <= 0 || bytesOnTheWay(socket) > 0) return;
    const qsizetype size = static_cast<qsizetype>(std::min<qint64>(*left, floodChunk));
    *left -= size;
    socket->write(QByteArray(size, ' '));
  };
  QObject::connect(socket, &QTcpSocket::bytesWritten, socket, pump);
  if (auto* const encrypted = qobject_cast<QSslSocket*>(socket)) {
    QObject::connect(encrypted, &QSslSocket::encryptedBytesWritten, socket, pump);
  }
  pump();
}

void pace(QTcpSocket* socket, const HttpResponse& response) {
  auto* const timer = new QTimer(socket);
  const auto rest = std::make_shared<QByteArray>(response.body);
  const auto steps = std::max<qsizetype>(response.pace / paceInterval, 1);
  const qsizetype piece = response.body.size() / steps + 1;
  QObject::connect(timer, &QTimer::timeout, socket, [socket, timer, rest, piece] {
    socket->write(rest->first(std::min(piece, rest->size())));
    rest->remove(0, piece);
    if (!rest->isEmpty()) return;
    timer->stop();
    socket->disconnectFromHost();
  });
  timer->start(paceInterval);
}

}  // namespace

void deliver(QTcpSocket* socket, const HttpResponse& response) {
  switch (response.delivery) {
    case HttpResponse::Delivery::Whole:
      socket->write(responseHead(response, response.body.size()) + response.body);
      socket->disconnectFromHost();
      return;
    case HttpResponse::Delivery::Silent:
      return;
    case HttpResponse::Delivery::HangUp:
      socket->disconnectFromHost();
      return;
    case HttpResponse::Delivery::Drip:
      drip(socket, responseHead(response, response.body.size()) + response.body);
      return;
    case HttpResponse::Delivery::Paced:
      socket->write(responseHead(response, response.body.size()));
      pace(socket, response);
      return;
    case HttpResponse::Delivery::CutOff:
      socket->write(responseHead(response, response.body.size() + 100) + response.body);
      socket->disconnectFromHost();
      return;
    case HttpResponse::Delivery::Flood:
      socket->write(responseHead(response, response.floodBytes));
      flood(socket, response.floodBytes);
      return;
  }
}

}  // namespace sandbox
