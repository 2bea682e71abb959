#include "tests/sandbox/Visitor.h"

#include <QSslCertificate>
#include <QSslConfiguration>
#include <QTest>
#include <memory>

Visitor::Answer Visitor::get(const QUrl& address) {
  return read(m_network.get(requestFor(address)));
}

Visitor::Answer Visitor::post(const QUrl& address, const QByteArray& body, const QByteArray& authorization) {
  QNetworkRequest request = requestFor(address);
  request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
  if (!authorization.isEmpty()) request.setRawHeader("Authorization", authorization);
  return read(m_network.post(request, body));
}

QNetworkRequest Visitor::requestFor(const QUrl& address) const {
  QNetworkRequest request(address);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
  if (address.scheme() != "https") return request;
  const QJsonObject other = places.value("otherName").toObject();
  const bool isOther = address.host() == other.value("site").toString();
  QUrl place = address;
  place.setHost("127.0.0.1");
  place.setPort((isOther ? other : places).value("https").toInt());
  request.setUrl(place);
  request.setRawHeader("Host", address.host().toLatin1());
  request.setPeerVerifyName(address.host());
  QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
  tls.setCaCertificates(QSslCertificate::fromData(places.value("certificates").toString().toLatin1()));
  request.setSslConfiguration(tls);
  return request;
}

Visitor::Answer Visitor::read(QNetworkReply* reply) {
  const std::unique_ptr<QNetworkReply> owned(reply);
  Answer answer;
  QObject::connect(reply, &QNetworkReply::readyRead, reply, [&answer, reply] {
    answer.body += reply->readAll();
    ++answer.pieces;
  });
  static_cast<void>(QTest::qWaitFor([&] { return reply->isFinished() || answer.body.size() > mostBytes; },
                                    static_cast<int>(patience.count())));
  answer.error = reply->isFinished() ? reply->error() : QNetworkReply::TimeoutError;
  answer.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  answer.contentType = reply->header(QNetworkRequest::ContentTypeHeader).toByteArray();
  answer.location = QString::fromLatin1(reply->rawHeader("Location"));
  reply->disconnect();
  return answer;
}
