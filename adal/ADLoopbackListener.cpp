#include "adal/ADLoopbackListener.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QNetworkProxy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "adal/ADAuthenticationSettings.h"
#include "adal/ADLogger.h"

namespace {

constexpr qsizetype longestRequestHead = 16 * 1024;
constexpr std::chrono::seconds longestRequest{10};
// More than are accepted before the first of them is read, so that a browser, which sends its request at
// once, is not the one that has to go.
constexpr int mostConnections = 128;
constexpr qsizetype mostWaiting = 16;
constexpr int mostPorts = 10;

void respond(QTcpSocket* socket, const QByteArray& statusAndHeaders, const QByteArray& body = {}) {
  socket->write(
      "HTTP/1.1 " + statusAndHeaders +
      "\r\nContent-Type: text/html; charset=utf-8\r\nContent-Security-Policy: " + browserPagePolicy() +
      "\r\nReferrer-Policy: no-referrer\r\nX-Content-Type-Options: nosniff\r\nCache-Control: no-store"
      "\r\nConnection: close\r\nContent-Length: " +
      QByteArray::number(body.size()) + "\r\n\r\n" + body);
  socket->flush();
  socket->disconnectFromHost();
}

void respondWithPage(QTcpSocket* socket, const QByteArray& status, ADBrowserPage page) {
  respond(socket, status, browserPageHtml(page));
}

// The path as a browser requests it.
QByteArray pathOf(const QUrl& address) {
  const QByteArray path = address.path(QUrl::FullyEncoded).toLatin1();
  return path.isEmpty() ? QByteArray("/") : path;
}

QList<QHostAddress> addressesNamed(const QString& host) {
  if (host == QLatin1String("localhost")) return {QHostAddress::LocalHost, QHostAddress::LocalHostIPv6};
  return {QHostAddress(host)};
}

// Whether a Host header names the address. A page of another site, whose name an attacker made point to the
// loopback address, sends that name.
bool isHost(const QByteArray& value, const QUrl& address) {
  QUrl named(QStringLiteral("http://host"));
  named.setAuthority(QString::fromLatin1(value), QUrl::StrictMode);
  return named.isValid() && named.userInfo().isEmpty() && named.host() == address.host() &&
         named.port(80) == address.port(80);
}

QList<QByteArray> hostsIn(const QList<QByteArray>& lines) {
  QList<QByteArray> hosts;
  for (const QByteArray& line : lines) {
    const qsizetype colon = line.indexOf(':');
    if (colon >= 0 && line.first(colon).toLower() == "host") hosts.append(line.sliced(colon + 1).trimmed());
  }
  return hosts;
}

// Then nobody else can listen there either.
bool isMissingOnThisMachine(QAbstractSocket::SocketError error) {
  return error == QAbstractSocket::UnsupportedSocketOperationError ||
         error == QAbstractSocket::SocketAddressNotAvailableError;
}

}  // namespace

ADLoopbackListener::ADLoopbackListener(Check isExpected) : m_isExpected(std::move(isExpected)) {}

ADLoopbackListener::~ADLoopbackListener() {
  for (QTcpSocket* socket : std::as_const(m_sockets)) socket->disconnect(this);
}

std::optional<ADError> ADLoopbackListener::listen(const QUrl& redirectUri) {
  const auto port = static_cast<quint16>(redirectUri.port(0));
  if (port != 0) closeEnded(port);
  bool isListening = false;
  for (int i = 0; i < (port == 0 ? mostPorts : 1) && !isListening; ++i)
    isListening = listenAt(addressesNamed(redirectUri.host()), port);
  if (!isListening)
    return ADError{ADErrorCode::Network, QStringLiteral("the callback port cannot be opened")};
  m_redirectUri = redirectUri;
  m_redirectUri.setPort(m_servers.first()->serverPort());
  return {};
}

bool ADLoopbackListener::listenAt(const QList<QHostAddress>& addresses, quint16 port) {
  for (const QHostAddress& address : addresses) {
    auto server = std::make_unique<QTcpServer>(this);
    // The application's proxy must not be used for the loopback address.
    server->setProxy(QNetworkProxy::NoProxy);
    server->setListenBacklogSize(mostConnections);
    if (server->listen(address, m_servers.isEmpty() ? port : m_servers.first()->serverPort())) {
      // Queued, so that what was accepted is read before more is accepted.
      connect(
          server.get(), &QTcpServer::newConnection, this, [this, server = server.get()] { accept(server); },
          Qt::QueuedConnection);
      m_servers.append(server.release());
    } else if (m_servers.isEmpty() || !isMissingOnThisMachine(server->serverError())) {
      qDeleteAll(std::exchange(m_servers, {}));
      return false;
    }
  }
  return true;
}

void ADLoopbackListener::end(std::unique_ptr<ADLoopbackListener> listener, ADBrowserPage outcome) {
  const auto reload = ADAuthenticationSettings::sharedInstance().limits().browserReload;
  if (!listener->m_isAnswered || QCoreApplication::closingDown()) {
    close(std::move(listener), outcome);
    return;
  }
  ADLoopbackListener* const ended = listener.release();
  ended->setOutcome(outcome);
  ended->setParent(QCoreApplication::instance());
  const auto stop = [ended] {
    ended->stopListening();
    ended->deleteLater();
  };
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, ended, stop);
  QTimer::singleShot(reload, ended, stop);
}

void ADLoopbackListener::close(std::unique_ptr<ADLoopbackListener> listener, ADBrowserPage outcome) {
  listener->setOutcome(outcome);
  listener->stopListening();
  // Later, because it may be the caller.
  listener.release()->deleteLater();
}

void ADLoopbackListener::closeEnded(quint16 port) {
  const auto ended =
      QCoreApplication::instance()->findChildren<ADLoopbackListener*>(Qt::FindDirectChildrenOnly);
  for (ADLoopbackListener* listener : ended)
    if (listener->m_redirectUri.port() == port) listener->stopListening();
}

void ADLoopbackListener::stopListening() {
  for (QTcpServer* server : std::as_const(m_servers)) server->close();
}

void ADLoopbackListener::setOutcome(ADBrowserPage outcome) {
  m_outcome = outcome;
  const QList<QTcpSocket*> waiting = std::exchange(m_waiting, {});
  for (QTcpSocket* socket : waiting) respondWithPage(socket, "200 OK", outcome);
  if (m_refused == 0) return;
  ADLogger::log(ADLogLevel::Warn,
                QStringLiteral("sign-in: answers that were not expected were refused: %1").arg(m_refused));
}

void ADLoopbackListener::accept(QTcpServer* server) {
  while (QTcpSocket* const socket = server->nextPendingConnection()) {
    m_sockets.append(socket);
    socket->setReadBufferSize(longestRequestHead);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
      m_sockets.removeOne(socket);
      m_waiting.removeOne(socket);
      socket->deleteLater();
    });
    QTimer::singleShot(longestRequest, socket, [this, socket] {
      if (!m_waiting.contains(socket)) socket->abort();
    });
    makeRoom();
  }
}

// Another program may open many connections: the oldest goes, but not the browser's that waits for the
// outcome.
void ADLoopbackListener::makeRoom() {
  if (m_sockets.size() <= mostConnections) return;
  const auto oldest = std::find_if(m_sockets.cbegin(), m_sockets.cend(),
                                   [this](QTcpSocket* socket) { return !m_waiting.contains(socket); });
  (*oldest)->abort();
}

void ADLoopbackListener::read(QTcpSocket* socket) {
  if (m_waiting.contains(socket)) socket->readAll();
  if (socket->state() != QAbstractSocket::ConnectedState) return;
  const QByteArray head = socket->peek(longestRequestHead);
  const qsizetype end = head.indexOf("\r\n\r\n");
  if (end >= 0) {
    socket->readAll();
    answerRequest(socket, head.first(end));
  } else if (head.size() >= longestRequestHead) {
    respond(socket, "431 Request Header Fields Too Large");
  }
}

void ADLoopbackListener::answerRequest(QTcpSocket* socket, const QByteArray& head) {
  const QList<QByteArray> lines = head.split('\n');
  const QList<QByteArray> words = lines.first().trimmed().split(' ');
  const QList<QByteArray> hosts = hostsIn(lines.sliced(1));
  if (words.size() != 3 || !words.at(2).startsWith("HTTP/1.") || hosts.size() != 1 ||
      !isHost(hosts.first(), m_redirectUri)) {
    respond(socket, "400 Bad Request");
    return;
  }
  // A HEAD request, as of a program that checks links, must not take the answer from the browser.
  if (words.at(0) != "GET") {
    respond(socket, "405 Method Not Allowed\r\nAllow: GET");
    return;
  }
  const qsizetype mark = words.at(1).indexOf('?');
  const QByteArray path = mark < 0 ? words.at(1) : words.at(1).first(mark);
  if (path != pathOf(m_redirectUri)) {
    respond(socket, "404 Not Found");
  } else if (m_isAnswered && mark < 0) {
    showOutcome(socket);
  } else {
    takeAnswer(socket, mark < 0 ? ADParameters() : decodedParameters(words.at(1).sliced(mark + 1)));
  }
}

void ADLoopbackListener::takeAnswer(QTcpSocket* socket, const ADParameters& answer) {
  if (!m_isAnswered && (m_outcome || !m_isExpected(answer))) {
    ++m_refused;
    respondWithPage(socket, "400 Bad Request", ADBrowserPage::NotExpected);
    return;
  }
  // An answer that comes again, as when a page is loaded again, shows the outcome too.
  respond(socket, "303 See Other\r\nLocation: " + m_redirectUri.toEncoded(QUrl::RemoveQuery));
  if (!std::exchange(m_isAnswered, true)) Q_EMIT answered(answer);
}

void ADLoopbackListener::showOutcome(QTcpSocket* socket) {
  if (m_outcome || m_waiting.size() >= mostWaiting) {
    respondWithPage(socket, "200 OK", m_outcome.value_or(ADBrowserPage::Pending));
    return;
  }
  m_waiting.append(socket);
  QTimer::singleShot(ADAuthenticationSettings::sharedInstance().limits().browserWait, socket, [this, socket] {
    if (m_waiting.removeOne(socket)) respondWithPage(socket, "200 OK", ADBrowserPage::Pending);
  });
}
