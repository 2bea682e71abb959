#include "adal/ADLoopbackListener.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTimer>
#include <utility>

#include "adal/ADAuthenticationSettings.h"

namespace {

constexpr qsizetype longestRequestHead = 16 * 1024;
constexpr qsizetype mostConnections = 16;
constexpr std::chrono::seconds longestConnection{10};

QByteArray callbackPage(const char* status, const char* text) {
  const QString words = ADAuthenticationSettings::sharedInstance().text(text).toHtmlEscaped();
  const QByteArray body = "<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>" + words.toUtf8() +
                          "</title></head><body><p>" + words.toUtf8() + "</p></body></html>";
  return QByteArray("HTTP/1.1 ") + status +
         "\r\nContent-Type: text/html; charset=utf-8\r\nContent-Security-Policy: default-src 'none'"
         "\r\nReferrer-Policy: no-referrer\r\nCache-Control: no-store\r\nConnection: "
         "close\r\nContent-Length: " +
         QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

void endWith(QTcpSocket* socket, const QByteArray& answer) {
  socket->write(answer);
  socket->flush();
  socket->disconnectFromHost();
}

}  // namespace

ADLoopbackListener::ADLoopbackListener(Receiver receiver) : m_receiver(std::move(receiver)) {
  connect(&m_server, &QTcpServer::newConnection, this, &ADLoopbackListener::accept);
}

ADLoopbackListener::~ADLoopbackListener() {
  m_server.disconnect(this);
  for (QTcpSocket* socket : std::as_const(m_sockets)) socket->disconnect(this);
}

std::optional<ADError> ADLoopbackListener::listen(const QUrl& redirectUri) {
  const QHostAddress named(redirectUri.host());
  const QHostAddress address = named.protocol() == QAbstractSocket::IPv6Protocol ? QHostAddress::LocalHostIPv6
                                                                                 : QHostAddress::LocalHost;
  // The application's proxy must not be used for the loopback address.
  m_server.setProxy(QNetworkProxy::NoProxy);
  if (!m_server.listen(address, static_cast<quint16>(redirectUri.port(0)))) {
    return ADError{ADErrorCode::Network, QStringLiteral("the callback port cannot be opened")};
  }
  m_redirectUri = redirectUri;
  m_redirectUri.setPort(m_server.serverPort());
  return {};
}

void ADLoopbackListener::accept() {
  while (QTcpSocket* const socket = m_server.nextPendingConnection()) {
    m_sockets.append(socket);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
      m_sockets.removeOne(socket);
      socket->deleteLater();
    });
    QTimer::singleShot(longestConnection, socket, [socket] { socket->abort(); });
    // The oldest connection is closed, so that idle ones cannot keep the browser from connecting.
    if (m_sockets.size() > mostConnections) m_sockets.first()->abort();
  }
}

void ADLoopbackListener::read(QTcpSocket* socket) {
  if (socket->state() != QAbstractSocket::ConnectedState) return;
  const QByteArray head = socket->peek(longestRequestHead);
  if (head.contains("\r\n\r\n")) {
    socket->readAll();
    answerRequest(socket, head.first(head.indexOf("\r\n")));
  } else if (head.size() >= longestRequestHead) {
    endWith(socket, callbackPage("431 Request Header Fields Too Large", "This request is too long."));
  }
}

void ADLoopbackListener::answerRequest(QTcpSocket* socket, const QByteArray& requestLine) {
  const QList<QByteArray> words = requestLine.split(' ');
  if (words.size() != 3 || !words.at(2).startsWith("HTTP/1.")) {
    endWith(socket, callbackPage("400 Bad Request", "This request cannot be read."));
    return;
  }
  if (words.at(0) != "GET") {
    endWith(socket, callbackPage("405 Method Not Allowed", "This request cannot be read."));
    return;
  }
  const qsizetype mark = words.at(1).indexOf('?');
  const QByteArray path = mark < 0 ? words.at(1) : words.at(1).first(mark);
  QByteArray expected = m_redirectUri.path(QUrl::FullyEncoded).toLatin1();
  if (expected.isEmpty()) expected = "/";
  if (!m_server.isListening() || path != expected) {
    endWith(socket, callbackPage("404 Not Found", "There is nothing here."));
    return;
  }
  const ADParameters answer = mark < 0 ? ADParameters() : decodedParameters(words.at(1).sliced(mark + 1));
  if (m_receiver(answer) == Verdict::NotOurs) {
    endWith(socket, callbackPage("400 Bad Request", "This is not the expected answer."));
    return;
  }
  m_server.close();
  endWith(socket, callbackPage("200 OK", "Your answer has arrived. You can close this page."));
}
