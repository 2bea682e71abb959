#include "sandbox/Answers.h"

#include <QJsonDocument>

namespace sandbox {

namespace {

constexpr int longestRound = 100;
constexpr qint64 floodSize = 100 * 1024 * 1024;

}  // namespace

HttpResponse jsonAnswer(const QJsonObject& object, int status) {
  return {.status = status, .body = QJsonDocument(object).toJson(QJsonDocument::Compact)};
}

HttpResponse pageAnswer(const QString& title, const QString& content, int status) {
  return {.status = status,
          .contentType = "text/html; charset=utf-8",
          .body = QStringLiteral("<!DOCTYPE html><html lang=\"en\"><head><meta charset=\"utf-8\">"
                                 "<title>%1</title></head><body>%2</body></html>")
                      .arg(title.toHtmlEscaped(), content)
                      .toUtf8()};
}

HttpResponse notHere() {
  return {.status = 404, .contentType = "text/plain", .body = "not here\n"};
}

HttpResponse delivered(HttpResponse response, HttpResponse::Delivery delivery) {
  response.delivery = delivery;
  return response;
}

HttpResponse floodAnswer() {
  return {.delivery = HttpResponse::Delivery::Flood, .floodBytes = floodSize};
}

HttpResponse leadTo(const QString& url, int status) {
  HttpResponse response{.status = status};
  response.headers.append({"Location", url.toLatin1()});
  return response;
}

HttpResponse leadRound(const HttpRequest& request) {
  const int step = request.query.queryItemValue(QStringLiteral("step")).toInt() + 1;
  if (step > longestRound) return notHere();
  return leadTo(QStringLiteral("https://%1%2?step=%3").arg(request.host(), request.path).arg(step));
}

}  // namespace sandbox
