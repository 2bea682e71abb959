#pragma once

#include <QJsonObject>
#include <QString>

#include "sandbox/HttpMessage.h"

namespace sandbox {

HttpResponse jsonAnswer(const QJsonObject& object, int status = 200);
// `content` is markup already.
HttpResponse pageAnswer(const QString& title, const QString& content, int status = 200);
HttpResponse notHere();

// The answer, sent in that way.
HttpResponse delivered(HttpResponse response, HttpResponse::Delivery delivery);
// A hundred megabytes.
HttpResponse floodAnswer();

HttpResponse leadTo(const QString& url, int status = 302);
// Leads the same way round a hundred times.
HttpResponse leadRound(const HttpRequest& request);

}  // namespace sandbox
