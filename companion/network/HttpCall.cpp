#include "companion/network/HttpCall.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslError>
#include <algorithm>
#include <utility>

#include "companion/network/SingleUseBody.h"

namespace {

using Trouble = HttpAnswer::Trouble;

// Below this, errors are about the connection; above, about what the server said.
constexpr int kFirstAnswerError = 100;
constexpr int kGood = 200;
constexpr qint64 kPieceBytes = 256 * 1024;

}  // namespace

HttpCall::HttpCall(QNetworkAccessManager& network, const NetworkConfiguration& configuration)
    : m_network(network), m_configuration(configuration) {
  m_deadline.setSingleShot(true);
  connect(&m_deadline, &QTimer::timeout, this, [this] { settle({.trouble = Trouble::TooSlow}); });
}

HttpCall::~HttpCall() {
  m_done = {};
  settle({});
}

void HttpCall::start(const HttpQuestion& question, Done done) {
  m_address = question.address;
  m_done = std::move(done);
  m_take = question.take;
  m_bytesLeft = question.takenBytes;
  const QNetworkRequest request = requestFor(question);
  m_reply = send(request, question);
  // The reply stops reading from the socket one byte past the limit.
  m_reply->setReadBufferSize(m_take ? kPieceBytes : m_configuration.limits.answerBytes + 1);
  connect(m_reply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& errors) {
    m_isOtherName = std::any_of(errors.begin(), errors.end(), [](const QSslError& error) {
      return error.error() == QSslError::HostNameMismatch;
    });
  });
  connect(m_reply, &QNetworkReply::readyRead, this, &HttpCall::readPiece);
  connect(m_reply, &QNetworkReply::finished, this, &HttpCall::readAnswer);
  // A transfer timeout would start anew with every byte.
  m_deadline.start(m_configuration.limits.request);
}

QNetworkReply* HttpCall::send(QNetworkRequest request, const HttpQuestion& question) {
  if (question.body.isEmpty()) return m_network.get(request);
  if (question.authorization.isEmpty()) return m_network.post(request, question.body);
  // A password leaves once: on a connection of its own, and never again when that breaks.
  m_network.clearConnectionCache();
  request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
  request.setHeader(QNetworkRequest::ContentLengthHeader, question.body.size());
  auto* const body = new SingleUseBody(question.body);
  QNetworkReply* const reply = m_network.post(request, body);
  body->setParent(reply);
  return reply;
}

QNetworkRequest HttpCall::requestFor(const HttpQuestion& question) const {
  QUrl address = question.address;
  QNetworkRequest request;
  const auto endpoint = m_configuration.endpoint ? m_configuration.endpoint(address) : std::nullopt;
  if (endpoint) {
    request.setRawHeader("Host", address.authority(QUrl::FullyEncoded).toLatin1());
    request.setPeerVerifyName(address.host(QUrl::FullyEncoded));
    address.setHost(endpoint->address);
    address.setPort(endpoint->port);
  }
  request.setUrl(address);
  if (endpoint && !endpoint->certificates.isEmpty()) {
    QSslConfiguration tls = request.sslConfiguration();
    tls.setCaCertificates(endpoint->certificates);
    request.setSslConfiguration(tls);
  }
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  for (const auto attribute :
       {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
        QNetworkRequest::AuthenticationReuseAttribute}) {
    request.setAttribute(attribute, QNetworkRequest::Manual);
  }
  if (!question.body.isEmpty()) request.setHeader(QNetworkRequest::ContentTypeHeader, question.contentType);
  if (!question.authorization.isEmpty()) request.setRawHeader("Authorization", question.authorization);
  // A packed answer would be unpacked before its size can be seen.
  request.setRawHeader("Accept-Encoding", "identity");
  return request;
}

bool HttpCall::isTaken() const {
  return m_take && m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == kGood;
}

void HttpCall::readPiece() {
  const Trouble trouble = takePiece();
  if (trouble != Trouble::None) return settle({.trouble = trouble});
  if (isTaken()) m_deadline.start();
}

Trouble HttpCall::takePiece() {
  if (!isTaken()) return isTooLong() ? Trouble::TooLong : Trouble::None;
  const QByteArray piece = m_reply->readAll();
  m_bytesLeft -= piece.size();
  if (m_bytesLeft < 0) return Trouble::TooLong;
  return piece.isEmpty() || m_take(piece) ? Trouble::None : Trouble::NotTaken;
}

bool HttpCall::isTooLong() const {
  return m_reply->bytesAvailable() > m_configuration.limits.answerBytes;
}

void HttpCall::readAnswer() {
  HttpAnswer answer;
  answer.trouble = takePiece();
  if (answer.trouble == Trouble::None) answer.trouble = trouble();
  if (answer.trouble == Trouble::None) {
    answer.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const QByteArray location = m_reply->rawHeader("Location");
    if (!location.isEmpty()) answer.location = m_address.resolved(QUrl::fromEncoded(location));
    answer.challenge = m_reply->rawHeader("WWW-Authenticate");
    answer.body = m_reply->readAll();
  }
  settle(answer);
}

Trouble HttpCall::trouble() const {
  const QNetworkReply::NetworkError error = m_reply->error();
  const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (error == QNetworkReply::HostNotFoundError) return Trouble::HostUnknown;
  if (error == QNetworkReply::SslHandshakeFailedError) {
    return m_isOtherName ? Trouble::CertificateOfOtherName : Trouble::Certificate;
  }
  const bool isWhole = status != 0 && (error == QNetworkReply::NoError || error >= kFirstAnswerError);
  return isWhole ? Trouble::None : Trouble::Unreachable;
}

void HttpCall::settle(const HttpAnswer& answer) {
  m_deadline.stop();
  if (m_reply != nullptr) {
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
  }
  const Done done = std::exchange(m_done, {});
  if (done) done(answer);
}

QList<QByteArray> offeredSchemes(const QByteArray& challenge) {
  static const QRegularExpression quoted(QStringLiteral("\"(?:[^\"\\\\]|\\\\.)*\""));
  QString plain = QString::fromLatin1(challenge);
  plain.remove(quoted);
  QList<QByteArray> schemes;
  for (const QString& part : plain.split(QLatin1Char(','))) {
    const QString word = part.simplified().section(QLatin1Char(' '), 0, 0).toLower();
    if (!word.isEmpty() && !word.contains(QLatin1Char('='))) schemes.append(word.toLatin1());
  }
  return schemes;
}
