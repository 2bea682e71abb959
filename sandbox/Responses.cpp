#include "sandbox/Responses.h"

#include <QJsonDocument>

namespace sandbox {

namespace {

constexpr int longestLoop = 100;

}  // namespace

HttpResponse jsonResponse(const QJsonObject& object, int status) {
  return {.status = status, .body = QJsonDocument(object).toJson(QJsonDocument::Compact)};
}

HttpResponse pageResponse(const QString& title, const QString& content, int status) {
  return {.status = status,
          .contentType = "text/html; charset=utf-8",
          .body = QStringLiteral("<!DOCTYPE html><html lang=\"en\"><head><meta charset=\"utf-8\">"
                                 "<title>%1</title></head><body>%2</body></html>")
                      .arg(title.toHtmlEscaped(), content)
                      .toUtf8()};
}

HttpResponse notFound() {
  return {.status = 404, .contentType = "text/plain", .body = "not found\n"};
}

HttpResponse delivered(HttpResponse response, HttpResponse::Delivery delivery) {
  response.delivery = delivery;
  return response;
}

HttpResponse redirectTo(const QString& url, int status) {
  HttpResponse response{.status = status};
  response.headers.append({"Location", url.toLatin1()});
  return response;
}

HttpResponse redirectLoop(const HttpRequest& request) {
  const int step = request.query.queryItemValue(QStringLiteral("step")).toInt() + 1;
  if (step > longestLoop) return notFound();
  return redirectTo(QStringLiteral("https://%1%2?step=%3").arg(request.host(), request.path).arg(step));
}

}  // namespace sandbox
