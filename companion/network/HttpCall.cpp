#include "companion/network/HttpCall.h"

#include <QIODevice>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslError>
#include <algorithm>
#include <utility>

#include "companion/network/WebAddress.h"

namespace {

// Errors below this are of the connection, the others of the server's response.
constexpr int kFirstResponseError = 100;
constexpr qsizetype kMostRedirects = 10;

// The body of a request that can be read once, so that it cannot be sent again without our knowledge.
class SingleUseBody final : public QIODevice {
 public:
  explicit SingleUseBody(QByteArray body) : m_body(std::move(body)) {
    static_cast<void>(open(QIODevice::ReadOnly | QIODevice::Unbuffered));
  }

  bool isSequential() const override { return true; }
  bool reset() override { return false; }
  qint64 bytesAvailable() const override { return m_body.size() - m_read; }

 protected:
  qint64 readData(char* data, qint64 size) override {
    const qint64 count = std::min(size, m_body.size() - m_read);
    if (count == 0) return -1;
    std::copy_n(m_body.constData() + m_read, count, data);
    m_read += count;
    return count;
  }
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

 private:
  const QByteArray m_body;
  qint64 m_read = 0;
};

QList<QByteArray> schemesOf(const QByteArray& challenge) {
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

FailureKind failureOfStatus(int status) {
  if (status == 200) return FailureKind::None;
  if (status == 401 || status == 403) return FailureKind::Forbidden;
  return status >= 500 ? FailureKind::ServerError : FailureKind::NotFound;
}

}  // namespace

HttpCall::HttpCall(QNetworkAccessManager& network, const NetworkConfiguration& configuration,
                   const HttpRequest& request, Done done)
    : m_network(network), m_configuration(configuration), m_request(request), m_done(std::move(done)) {
  m_deadline.setSingleShot(true);
  connect(&m_deadline, &QTimer::timeout, this, [this] { fail(FailureKind::TooSlow); });
  const auto begin = [this] {
    m_request.redirects == Redirects::Follow ? follow(m_request.address) : this->request();
  };
  QMetaObject::invokeMethod(this, begin, Qt::QueuedConnection);
}

HttpCall::~HttpCall() {
  m_done = {};
  settle({});
}

void HttpCall::follow(const QUrl& address) {
  if (!isSafeStep(m_request.address, address)) return fail(FailureKind::Unsafe);
  m_request.address = address;
  if (m_visited.contains(address) || m_visited.size() > kMostRedirects) {
    return fail(FailureKind::TooManyRedirects);
  }
  m_visited.insert(address);
  request();
}

void HttpCall::request() {
  const auto& refusal = m_configuration.refusal;
  const QString reason = refusal ? refusal(m_request.address) : QString();
  if (!reason.isEmpty()) return settle({.failure = {.kind = FailureKind::Explained, .detail = reason}});
  m_reply = send();
  // The reply stops reading from the socket one byte past the limit.
  m_reply->setReadBufferSize(m_configuration.limits.responseBytes + 1);
  connect(m_reply, &QNetworkReply::sslErrors, this, [this](const QList<QSslError>& errors) {
    m_isOtherName = std::any_of(errors.begin(), errors.end(), [](const QSslError& error) {
      return error.error() == QSslError::HostNameMismatch;
    });
  });
  connect(m_reply, &QNetworkReply::readyRead, this, [this] {
    if (isTooLong()) fail(FailureKind::BadResponse);
  });
  connect(m_reply, &QNetworkReply::finished, this, [this] { settle(response()); });
  // A transfer timeout would start again with every byte.
  m_deadline.start(m_configuration.limits.request);
}

QNetworkReply* HttpCall::send() {
  QNetworkRequest sent = networkRequest();
  if (m_request.body.isEmpty()) return m_network.get(sent);
  if (m_request.authorization.isEmpty()) return m_network.post(sent, m_request.body);
  // A password is sent once: on a connection of its own, and never again when that breaks.
  m_network.clearConnectionCache();
  sent.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
  sent.setHeader(QNetworkRequest::ContentLengthHeader, m_request.body.size());
  auto* const body = new SingleUseBody(m_request.body);
  QNetworkReply* const reply = m_network.post(sent, body);
  body->setParent(reply);
  return reply;
}

QNetworkRequest HttpCall::networkRequest() const {
  QUrl address = m_request.address;
  QNetworkRequest result;
  const auto endpoint = m_configuration.endpoint ? m_configuration.endpoint(address) : std::nullopt;
  if (endpoint) {
    result.setRawHeader("Host", address.authority(QUrl::FullyEncoded).toLatin1());
    result.setPeerVerifyName(address.host(QUrl::FullyEncoded));
    address.setHost(endpoint->address);
    address.setPort(endpoint->port);
  }
  result.setUrl(address);
  if (endpoint && !endpoint->certificates.isEmpty()) {
    QSslConfiguration tls = result.sslConfiguration();
    tls.setCaCertificates(endpoint->certificates);
    result.setSslConfiguration(tls);
  }
  result.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  result.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  for (const auto attribute :
       {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
        QNetworkRequest::AuthenticationReuseAttribute}) {
    result.setAttribute(attribute, QNetworkRequest::Manual);
  }
  if (!m_request.body.isEmpty()) {
    result.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("text/xml; charset=utf-8"));
  }
  if (!m_request.authorization.isEmpty()) result.setRawHeader("Authorization", m_request.authorization);
  // A compressed response would be unpacked before its size can be seen.
  result.setRawHeader("Accept-Encoding", "identity");
  return result;
}

bool HttpCall::isTooLong() const {
  return m_reply->bytesAvailable() > m_configuration.limits.responseBytes;
}

HttpResponse HttpCall::response() const {
  const auto failed = [this](FailureKind kind) {
    return HttpResponse{.failure = {.kind = kind, .host = m_request.address.host()}};
  };
  if (isTooLong()) return failed(FailureKind::BadResponse);
  if (const FailureKind kind = connectionFailure(); kind != FailureKind::None) return failed(kind);
  const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (status == 401 && m_request.redirects == Redirects::Report) {
    return {.isChallenge = true, .challengeSchemes = schemesOf(m_reply->rawHeader("WWW-Authenticate"))};
  }
  const QUrl location = QUrl::fromEncoded(m_reply->rawHeader("Location"));
  if (status >= 300 && status < 400 && location.isValid())
    return {.redirect = m_request.address.resolved(location)};
  if (const FailureKind kind = failureOfStatus(status); kind != FailureKind::None) return failed(kind);
  return {.body = m_reply->readAll()};
}

FailureKind HttpCall::connectionFailure() const {
  const QNetworkReply::NetworkError error = m_reply->error();
  const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (error == QNetworkReply::HostNotFoundError) return FailureKind::HostUnknown;
  if (error == QNetworkReply::SslHandshakeFailedError) {
    return m_isOtherName ? FailureKind::CertificateOfOtherName : FailureKind::Certificate;
  }
  const bool isWhole = status != 0 && (error == QNetworkReply::NoError || error >= kFirstResponseError);
  return isWhole ? FailureKind::None : FailureKind::Unreachable;
}

void HttpCall::settle(HttpResponse response) {
  m_deadline.stop();
  if (m_reply != nullptr) {
    m_reply->disconnect(this);
    m_reply->abort();
    m_reply->deleteLater();
    m_reply = nullptr;
  }
  const bool isFollowed = m_request.redirects == Redirects::Follow && !response.redirect.isEmpty();
  if (isFollowed) return follow(response.redirect);
  response.address = m_request.address;
  const Done done = std::exchange(m_done, {});
  if (done) done(response);
}
