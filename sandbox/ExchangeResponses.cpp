#include "sandbox/ExchangeResponses.h"

#include <QDateTime>

namespace sandbox {

namespace {

HttpResponse xmlResponse(const QByteArray& xml) {
  return {.contentType = "text/xml; charset=utf-8", .body = xml};
}

HttpResponse accountResponse(const QString& account) {
  const QString schema = QStringLiteral("http://schemas.microsoft.com/exchange/autodiscover/");
  return xmlResponse(QStringLiteral("<?xml version=\"1.0\" encoding=\"utf-8\"?>"
                                    "<Autodiscover xmlns=\"%1responseschema/2006\">"
                                    "<Response xmlns=\"%1outlook/responseschema/2006a\">"
                                    "<Account><AccountType>email</AccountType>%2</Account>"
                                    "</Response></Autodiscover>")
                         .arg(schema, account)
                         .toUtf8());
}

QString meeting(const QString& subject, int hoursFromNow) {
  const QDateTime start = QDateTime::currentDateTimeUtc().addSecs(hoursFromNow * 3600);
  return QStringLiteral("<t:CalendarItem><t:Subject>%1</t:Subject><t:Start>%2</t:Start></t:CalendarItem>")
      .arg(subject.toHtmlEscaped(), start.toString(Qt::ISODate));
}

}  // namespace

HttpResponse challengeResponse(const QList<QByteArray>& challenges) {
  HttpResponse response{.status = 401, .contentType = "text/plain", .body = "unauthorized\n"};
  for (const QByteArray& challenge : challenges) response.headers.append({"WWW-Authenticate", challenge});
  return response;
}

HttpResponse servicesResponse(const QString& externalUrl, const QString& internalUrl) {
  return accountResponse(QStringLiteral("<Action>settings</Action>"
                                        "<Protocol><Type>EXCH</Type><EwsUrl>%2</EwsUrl></Protocol>"
                                        "<Protocol><Type>EXPR</Type><EwsUrl>%1</EwsUrl></Protocol>")
                             .arg(externalUrl, internalUrl));
}

HttpResponse otherUrlResponse(const QString& url) {
  return accountResponse(
      QStringLiteral("<Action>redirectUrl</Action><RedirectUrl>%1</RedirectUrl>").arg(url.toHtmlEscaped()));
}

HttpResponse otherEmailResponse(const QString& email) {
  return accountResponse(
      QStringLiteral("<Action>redirectAddr</Action><RedirectAddr>%1</RedirectAddr>").arg(email));
}

HttpResponse entityBombResponse() {
  QByteArray entities = "<!ENTITY e0 \"swell\">";
  for (int level = 1; level < 10; ++level) {
    const QByteArray inner = "&e" + QByteArray::number(level - 1) + ";";
    entities += "<!ENTITY e" + QByteArray::number(level) + " \"" + inner.repeated(10) + "\">";
  }
  return xmlResponse("<?xml version=\"1.0\"?><!DOCTYPE Autodiscover [" + entities +
                     "]><Autodiscover><Response><Account><Action>settings</Action><Protocol><Type>EXPR</Type>"
                     "<EwsUrl>https://mail.entities.sandbox.example/&e9;</EwsUrl></Protocol></Account>"
                     "</Response></Autodiscover>");
}

HttpResponse meetingsResponse() {
  const QString schema = QStringLiteral("http://schemas.microsoft.com/exchange/services/2006/");
  const QString items = meeting(QStringLiteral("Review of the quarter"), 26) +
                        meeting(QStringLiteral("Stand-up"), 1) + meeting(QStringLiteral("Design & lunch"), 3);
  return xmlResponse(
      QStringLiteral(
          "<s:Envelope xmlns:s=\"http://schemas.xmlsoap.org/soap/envelope/\" "
          "xmlns:m=\"%1messages\" xmlns:t=\"%1types\"><s:Body><m:FindItemResponse>"
          "<m:ResponseMessages><m:FindItemResponseMessage ResponseClass=\"Success\">"
          "<m:ResponseCode>NoError</m:ResponseCode><m:RootFolder><t:Items>%2</t:Items></m:RootFolder>"
          "</m:FindItemResponseMessage></m:ResponseMessages></m:FindItemResponse></s:Body></s:Envelope>")
          .arg(schema, items)
          .toUtf8());
}

}  // namespace sandbox
