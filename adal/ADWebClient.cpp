#include "adal/ADWebClient.h"

#include <QLocale>
#include <QMetaEnum>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimeZone>
#include <utility>

#include "adal/ADAddress.h"
#include "adal/ADAuthenticationSettings.h"

namespace {

QNetworkRequest boundedRequest(const QUrl& address) {
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  for (const auto attribute :
       {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
        QNetworkRequest::AuthenticationReuseAttribute}) {
    request.setAttribute(attribute, QNetworkRequest::Manual);
  }
  request.setRawHeader("Accept", "application/json");
  // A compressed response would be decompressed before its size is known.
  request.setRawHeader("Accept-Encoding", "identity");
  return request;
}

ADWebAnswer noWholeAnswer(ADErrorCode code, const QString& details) {
  return {ADError{code, details}, 0, {}, {}};
}

QDateTime dateOf(const QNetworkReply& reply) {
  QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(reply.rawHeader("Date")),
                                           QStringLiteral("ddd, dd MMM yyyy hh:mm:ss 'GMT'"));
  date.setTimeZone(QTimeZone::utc());
  return date;
}

// Errors below this are of the connection, the others of the server's response.
constexpr int firstAnswerError = 100;

constexpr int mostRedirects = 5;

}  // namespace

ADWebClient::ADWebClient(QObject* parent) : QObject(parent) {
  m_deadline.setSingleShot(true);
  connect(&m_deadline, &QTimer::timeout, this,
          [this] { settle(noWholeAnswer(ADErrorCode::Network, QStringLiteral("no answer in time"))); });
}

ADWebClient::~ADWebClient() {
  m_done = {};
  settle({});
}

void ADWebClient::get(const QUrl& address, Done done) {
  begin(std::move(done));
  m_redirectsLeft = mostRedirects;
  watch(m_manager.get(boundedRequest(address)));
}

void ADWebClient::post(const QUrl& address, const ADParameters& form, Done done) {
  begin(std::move(done));
  QNetworkRequest request = boundedRequest(address);
  request.setHeader(QNetworkRequest::ContentTypeHeader,
                    QByteArrayLiteral("application/x-www-form-urlencoded"));
  watch(m_manager.post(request, encodedParameters(form)));
}

void ADWebClient::begin(Done done) {
  const ADRequestLimits limits = ADAuthenticationSettings::sharedInstance().limits();
  m_limit = limits.answerBytes;
  m_done = std::move(done);
  m_deadline.start(limits.transfer);
}

void ADWebClient::watch(QNetworkReply* reply) {
  m_reply = reply;
  // The reply stops reading from the socket one byte past the limit.
  reply->setReadBufferSize(m_limit + 1);
  connect(reply, &QNetworkReply::readyRead, this, &ADWebClient::checkSize);
  connect(reply, &QNetworkReply::finished, this, &ADWebClient::readAnswer);
}

void ADWebClient::follow(const QUrl& target) {
  const QUrl address = m_reply->url().resolved(target);
  if (!isAllowedAddress(address) || !isSameOrigin(address, m_reply->url())) {
    settle(noWholeAnswer(ADErrorCode::ServerAnswer, QStringLiteral("redirected elsewhere")));
    return;
  }
  if (m_redirectsLeft-- == 0) {
    settle(noWholeAnswer(ADErrorCode::ServerAnswer, QStringLiteral("redirected too often")));
    return;
  }
  m_reply->disconnect(this);
  m_reply->deleteLater();
  watch(m_manager.get(boundedRequest(address)));
}

void ADWebClient::checkSize() {
  if (m_reply->bytesAvailable() <= m_limit) return;
  settle(noWholeAnswer(ADErrorCode::ServerAnswer, QStringLiteral("too long")));
}

void ADWebClient::readAnswer() {
  checkSize();
  if (m_reply == nullptr) return;
  const QNetworkReply::NetworkError error = m_reply->error();
  const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  if (status == 0 || (error != QNetworkReply::NoError && error < firstAnswerError)) {
    const char* const name = QMetaEnum::fromType<QNetworkReply::NetworkError>().valueToKey(error);
    settle(noWholeAnswer(ADErrorCode::Network, QString::fromLatin1(name)));
    return;
  }
  const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
  if (!target.isEmpty() && m_reply->operation() == QNetworkAccessManager::GetOperation) {
    follow(target);
    return;
  }
  settle({{}, status, m_reply->readAll(), dateOf(*m_reply)});
}

void ADWebClient::settle(const ADWebAnswer& answer) {
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
