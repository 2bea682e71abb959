#pragma once

#include <QJsonObject>
#include <QString>

#include "sandbox/HttpMessage.h"

namespace sandbox {

HttpResponse jsonResponse(const QJsonObject& object, int status = 200);
// `content` is HTML.
HttpResponse pageResponse(const QString& title, const QString& content, int status = 200);
HttpResponse notFound();
// The response with that delivery.
HttpResponse delivered(HttpResponse response, HttpResponse::Delivery delivery);

HttpResponse redirectTo(const QString& url, int status = 302);
// Redirects to the same path a hundred times.
HttpResponse redirectLoop(const HttpRequest& request);

}  // namespace sandbox
