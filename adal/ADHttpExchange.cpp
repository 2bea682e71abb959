#include "adal/ADHttpExchange.h"

#include <QCoreApplication>
#include <QHostInfo>
#include <QNetworkProxy>
#include <QRegularExpression>
#include <QSslError>
#include <QSslSocket>
#include <algorithm>

namespace {

using namespace std::chrono_literals;

// As long as browsers wait before they also try a host's next address.
constexpr auto nextAddressDelay = 250ms;
constexpr qint64 longestLine = 16 * 1024;
constexpr qint64 mostHeaderBytes = 64 * 1024;
// As much as is read before other events have their turn, however fast a server sends.
constexpr qint64 readBufferBytes = 2 * longestLine;

bool isEncrypted(const QUrl& address) {
  return address.scheme() == QLatin1String("https");
}

QString hostOf(const QUrl& address) {
  return address.host(QUrl::FullyEncoded);
}

quint16 portOf(const QUrl& address) {
  return static_cast<quint16>(address.port(isEncrypted(address) ? 443 : 80));
}

// The first way that the desktop's settings name; none where it leads past a proxy.
QNetworkProxy proxyFor(const QUrl& address) {
  for (const QNetworkProxy& proxy : QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(address))) {
    if (proxy.type() == QNetworkProxy::NoProxy) break;
    if (proxy.capabilities().testFlag(QNetworkProxy::TunnelingCapability)) return proxy;
  }
  return QNetworkProxy::NoProxy;
}

// An untrusted certificate may say anything about its time.
ADHttpFailure failureOf(const QList<QSslError>& errors) {
  const auto has = [&errors](QSslError::SslError wanted) {
    return std::ranges::any_of(errors, [wanted](const QSslError& error) { return error.error() == wanted; });
  };
  const auto isOfTime = [](const QSslError& error) {
    return error.error() == QSslError::CertificateExpired ||
           error.error() == QSslError::CertificateNotYetValid;
  };
  if (has(QSslError::HostNameMismatch)) return ADHttpFailure::CertificateOfOtherName;
  if (!std::ranges::all_of(errors, isOfTime)) return ADHttpFailure::CertificateUntrusted;
  return has(QSslError::CertificateExpired) ? ADHttpFailure::CertificateExpired
                                            : ADHttpFailure::CertificateNotYetValid;
}

// A value that came from outside adds no header of its own.
QByteArray headerLine(const QByteArray& name, QByteArray value) {
  return name + ": " + value.replace('\r', ' ').replace('\n', ' ') + "\r\n";
}

QByteArray headOf(const ADHttpRequest& request) {
  const QUrl address = request.address.adjusted(QUrl::RemoveUserInfo);
  const QByteArray path = address.path(QUrl::FullyEncoded).toLatin1();
  QByteArray head = request.body.isEmpty() ? "GET " : "POST ";
  head += path.isEmpty() ? "/" : path;
  if (address.hasQuery()) head += '?' + address.query(QUrl::FullyEncoded).toLatin1();
  head += " HTTP/1.1\r\n" + headerLine("Host", address.authority(QUrl::FullyEncoded).toLatin1());
  head += headerLine("User-Agent", "Brenn-Mivra-Meetings");
  for (const auto& [name, value] : request.headers) head += headerLine(name, value);
  // A compressed response would be unpacked before its size can be seen.
  head += headerLine("Accept-Encoding", "identity") + headerLine("Connection", "close");
  if (!request.body.isEmpty()) head += headerLine("Content-Length", QByteArray::number(request.body.size()));
  return head + "\r\n";
}

}  // namespace

QByteArray ADHttpResponse::header(const char* name) const {
  QByteArrayList values;
  for (const auto& [known, value] : headers) {
    if (known.compare(name, Qt::CaseInsensitive) == 0) values.append(value);
  }
  return values.join(", ");
}

ADHttpExchange::ADHttpExchange(const ADHttpRequest& request, Done done)
    : m_request(request), m_done(std::move(done)) {
  m_deadline.setSingleShot(true);
  connect(&m_deadline, &QTimer::timeout, this, [this] { fail(ADHttpFailure::TooSlow); });
  m_stagger.setSingleShot(true);
  m_stagger.setInterval(nextAddressDelay);
  connect(&m_stagger, &QTimer::timeout, this, &ADHttpExchange::connectToNext);
  m_deadline.start(m_request.time);
  QMetaObject::invokeMethod(this, &ADHttpExchange::start, Qt::QueuedConnection);
}

ADHttpExchange::~ADHttpExchange() {
  m_done = {};
  finish({});
}

void ADHttpExchange::start() {
  if (m_done == nullptr) return;
  const QString host = m_request.peer ? m_request.peer->address : hostOf(m_request.address);
  // A look-up of an address would ask for its name.
  const QHostAddress literal(host);
  // This machine by definition: a name server need not be asked, and cannot send it elsewhere.
  const bool isLocalhost = host == QLatin1String("localhost");
  const bool isDirect = m_request.peer || isLocalhost || literal.isLoopback();
  const QNetworkProxy proxy = isDirect ? QNetworkProxy::NoProxy : proxyFor(m_request.address);
  if (proxy.type() != QNetworkProxy::NoProxy) return connectThroughProxy(proxy);
  if (isLocalhost) m_waiting = {QHostAddress::LocalHostIPv6, QHostAddress::LocalHost};
  if (!literal.isNull()) m_waiting = {literal};
  if (!m_waiting.isEmpty()) return connectToNext();
  QHostInfo::lookupHost(host, this, [this](const QHostInfo& found) {
    if (m_done == nullptr) return;
    m_waiting = found.addresses();
    m_waiting.isEmpty() ? fail(ADHttpFailure::HostUnknown) : connectToNext();
  });
}

QSslSocket* ADHttpExchange::createSocket() {
  auto* const socket = new QSslSocket(this);
  m_attempts.append(socket);
  connect(socket, &QSslSocket::connected, this, [this, socket] { onConnected(socket); });
  connect(socket, &QSslSocket::errorOccurred, this, [this, socket](QAbstractSocket::SocketError error) {
    socket == m_socket ? onSocketError(error) : onAttemptFailed(socket);
  });
  return socket;
}

void ADHttpExchange::connectThroughProxy(const QNetworkProxy& proxy) {
  QSslSocket* const socket = createSocket();
  socket->setProxy(proxy);
  socket->connectToHost(hostOf(m_request.address), portOf(m_request.address));
}

void ADHttpExchange::connectToNext() {
  if (m_waiting.isEmpty()) return;
  const QHostAddress address = m_waiting.takeFirst();
  if (!m_waiting.isEmpty()) m_stagger.start();
  QSslSocket* const socket = createSocket();
  socket->setProxy(QNetworkProxy::NoProxy);
  socket->connectToHost(address, m_request.peer ? m_request.peer->port : portOf(m_request.address));
}

// A signal of its own may have led here.
void ADHttpExchange::release(QSslSocket* socket) {
  socket->disconnect(this);
  socket->abort();
  socket->setParent(QCoreApplication::instance());
  socket->deleteLater();
}

void ADHttpExchange::onAttemptFailed(QSslSocket* socket) {
  m_attempts.removeOne(socket);
  release(socket);
  if (!m_waiting.isEmpty()) return connectToNext();
  if (m_attempts.isEmpty()) fail(ADHttpFailure::Unreachable);
}

void ADHttpExchange::onConnected(QSslSocket* socket) {
  m_stagger.stop();
  m_waiting.clear();
  m_socket = socket;
  for (QSslSocket* const other : std::exchange(m_attempts, {})) {
    if (other != socket) release(other);
  }
  socket->setReadBufferSize(readBufferBytes);
  connect(socket, &QSslSocket::readyRead, this, &ADHttpExchange::read);
  connect(socket, &QSslSocket::disconnected, this, &ADHttpExchange::onClosed);
  if (!isEncrypted(m_request.address)) return send();
  connect(socket, &QSslSocket::encrypted, this, &ADHttpExchange::send);
  connect(socket, &QSslSocket::sslErrors, this,
          [this](const QList<QSslError>& errors) { m_certificateFailure = failureOf(errors); });
  if (m_request.peer && !m_request.peer->certificates.isEmpty()) {
    QSslConfiguration tls = socket->sslConfiguration();
    tls.setCaCertificates(m_request.peer->certificates);
    socket->setSslConfiguration(tls);
  }
  socket->setPeerVerifyName(hostOf(m_request.address));
  socket->startClientEncryption();
}

void ADHttpExchange::send() {
  m_socket->write(headOf(m_request) + m_request.body);
}

void ADHttpExchange::onSocketError(int error) {
  // What arrived before the end is read first.
  if (error == QAbstractSocket::RemoteHostClosedError) return;
  const bool isHandshake = error == QAbstractSocket::SslHandshakeFailedError;
  if (!isHandshake) return fail(ADHttpFailure::Unreachable);
  const bool isCertificate = m_certificateFailure != ADHttpFailure::None;
  fail(isCertificate ? m_certificateFailure : ADHttpFailure::Encryption);
}

void ADHttpExchange::onClosed() {
  read();
  if (m_socket == nullptr) return;
  m_part == Part::ToTheEnd ? finish(m_response) : fail(ADHttpFailure::Unreachable);
}

void ADHttpExchange::read() {
  while (m_socket != nullptr && readPart()) {
  }
}

// False when more bytes are needed, or the exchange is over.
bool ADHttpExchange::readPart() {
  switch (m_part) {
    case Part::Counted:
    case Part::Chunk:
      return readBody(m_left);
    case Part::ToTheEnd:
      return readBody(m_socket->bytesAvailable());
    default:
      return readLine();
  }
}

bool ADHttpExchange::readLine() {
  if (!m_socket->canReadLine()) {
    if (m_socket->bytesAvailable() >= longestLine) fail(ADHttpFailure::Malformed);
    return false;
  }
  QByteArray line = m_socket->readLine(longestLine);
  // The lines between chunks are bounded by the body.
  if (m_part != Part::ChunkSize && m_part != Part::ChunkEnd) m_headerBytes += line.size();
  if (!line.endsWith('\n') || m_headerBytes > mostHeaderBytes) {
    fail(ADHttpFailure::Malformed);
    return false;
  }
  line.chop(line.endsWith("\r\n") ? 2 : 1);
  switch (m_part) {
    case Part::Status:
      readStatus(line);
      break;
    case Part::ChunkSize:
      readChunkSize(line);
      break;
    case Part::ChunkEnd:
      line.isEmpty() ? void(m_part = Part::ChunkSize) : fail(ADHttpFailure::Malformed);
      break;
    case Part::Trailers:
      if (line.isEmpty()) finish(m_response);
      break;
    default:
      line.isEmpty() ? startBody() : readHeader(line);
  }
  return true;
}

void ADHttpExchange::readStatus(const QByteArray& line) {
  static const QRegularExpression pattern(QStringLiteral("\\AHTTP/1\\.[0-9] ([1-5][0-9]{2})( .*)?\\z"));
  const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(line));
  if (!match.hasMatch()) return fail(ADHttpFailure::Malformed);
  m_response.status = match.captured(1).toInt();
  m_part = Part::Headers;
}

void ADHttpExchange::readHeader(const QByteArray& line) {
  const qsizetype colon = line.indexOf(':');
  const bool isContinued = line.startsWith(' ') || line.startsWith('\t');
  if (isContinued ? m_response.headers.isEmpty() : colon <= 0) return fail(ADHttpFailure::Malformed);
  if (isContinued) {
    m_response.headers.last().second += ' ' + line.trimmed();
    return;
  }
  m_response.headers.append({line.first(colon), line.sliced(colon + 1).trimmed()});
}

void ADHttpExchange::startBody() {
  if (m_response.status < 200) {
    // More follows this one.
    m_response = {};
    m_part = Part::Status;
    return;
  }
  if (m_response.status == 204 || m_response.status == 304) return finish(m_response);
  const QByteArray coding = m_response.header("Transfer-Encoding").toLower();
  const QByteArray length = m_response.header("Content-Length");
  bool isNumber = length.isEmpty();
  m_left = length.isEmpty() ? 0 : length.toLongLong(&isNumber);
  const bool isReadable = coding.isEmpty() ? isNumber && m_left >= 0 : coding == "chunked";
  if (!isReadable) return fail(ADHttpFailure::Malformed);
  if (!coding.isEmpty()) {
    m_part = Part::ChunkSize;
  } else if (length.isEmpty()) {
    m_part = Part::ToTheEnd;
  } else if (m_left == 0) {
    finish(m_response);
  } else {
    m_part = Part::Counted;
  }
}

void ADHttpExchange::readChunkSize(const QByteArray& line) {
  bool isNumber = false;
  m_left = line.split(';').first().trimmed().toLongLong(&isNumber, 16);
  if (!isNumber || m_left < 0) return fail(ADHttpFailure::Malformed);
  m_part = m_left == 0 ? Part::Trailers : Part::Chunk;
}

bool ADHttpExchange::readBody(qint64 most) {
  const qint64 room = m_request.responseBytes - m_response.body.size();
  // An announced length that is too long need not be waited for.
  if (most > room) {
    fail(ADHttpFailure::TooLong);
    return false;
  }
  const QByteArray bytes = m_socket->read(most);
  if (bytes.isEmpty()) return false;
  m_response.body += bytes;
  m_left -= bytes.size();
  if (m_part == Part::ToTheEnd || m_left > 0) return true;
  if (m_part == Part::Chunk) {
    m_part = Part::ChunkEnd;
    return true;
  }
  finish(m_response);
  return false;
}

void ADHttpExchange::fail(ADHttpFailure failure) {
  finish({.failure = failure});
}

void ADHttpExchange::finish(const ADHttpResponse& response) {
  m_deadline.stop();
  m_stagger.stop();
  m_waiting.clear();
  if (m_socket != nullptr) m_attempts.append(std::exchange(m_socket, nullptr));
  for (QSslSocket* const socket : std::exchange(m_attempts, {})) release(socket);
  if (m_done == nullptr) return;
  // Later, because it may delete the exchange, which a socket's signal is still in.
  const auto deliver = [done = std::exchange(m_done, {}), response] { done(response); };
  QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
}
