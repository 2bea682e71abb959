#include "companion/exchange/AutodiscoverMessage.h"

#include <QHash>

#include "companion/exchange/BoundedXml.h"
#include "companion/network/WebAddress.h"

namespace {

constexpr int kLongestErrorText = 200;

QUrl safeUrl(const QString& text) {
  const QUrl url(text, QUrl::StrictMode);
  return isSafeAddress(url) ? url : QUrl();
}

}  // namespace

QByteArray autodiscoverRequest(const QString& email) {
  return QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>
<Autodiscover xmlns="http://schemas.microsoft.com/exchange/autodiscover/outlook/requestschema/2006">
  <Request>
    <EMailAddress>%1</EMailAddress>
    <AcceptableResponseSchema>%2</AcceptableResponseSchema>
  </Request>
</Autodiscover>
)")
      .arg(email.toHtmlEscaped(), QStringLiteral("http://schemas.microsoft.com/exchange/autodiscover/outlook/"
                                                 "responseschema/2006a"))
      .toUtf8();
}

AutodiscoverResponse readAutodiscoverResponse(const QByteArray& xml) {
  using Kind = AutodiscoverResponse::Kind;
  // By the names of the element and its parent, whose capitals differ between servers.
  QHash<QString, QString> texts;
  QHash<QString, QString> webServices;  // by the type of their protocol
  const bool isRead = walkBoundedXml(xml, [&](const QString& path, const QString& text) {
    const QString place = path.section(QLatin1Char('/'), -2).toLower();
    texts.insert(place, text);
    if (place != QLatin1String("account/protocol")) return;
    webServices.insert(texts.take(QStringLiteral("protocol/type")),
                       texts.take(QStringLiteral("protocol/ewsurl")));
  });
  if (!isRead) return {};
  if (texts.contains(QStringLiteral("response/error"))) {
    const QString error = texts.value(QStringLiteral("error/message")).simplified();
    return {.kind = Kind::Error, .errorText = error.left(kLongestErrorText)};
  }
  const QString action = texts.value(QStringLiteral("account/action")).toLower();
  const QString email = texts.value(QStringLiteral("account/redirectaddr"));
  if (action == QLatin1String("redirectaddr") && !email.isEmpty()) {
    return {.kind = Kind::OtherEmail, .otherEmail = email};
  }
  const QUrl url(texts.value(QStringLiteral("account/redirecturl")), QUrl::StrictMode);
  if (action == QLatin1String("redirecturl") && url.isValid()) {
    return {.kind = Kind::OtherUrl, .otherUrl = url};
  }
  if (action != QLatin1String("settings")) return {};
  const QUrl external = safeUrl(webServices.value(QStringLiteral("EXPR")));
  // The newer form of EXPR, preferred when both are there.
  const QUrl newer = safeUrl(webServices.value(QStringLiteral("EXHTTP")));
  return {.kind = Kind::Services,
          .services = {.externalUrl = external.isEmpty() ? newer : external,
                       .internalUrl = safeUrl(webServices.value(QStringLiteral("EXCH")))}};
}
