#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include "sandbox/HttpMessage.h"

namespace sandbox {

HttpResponse xmlAnswer(const QByteArray& xml);
HttpResponse challengeAnswer(const QList<QByteArray>& challenges);

// The discovery protocol's answers.
HttpResponse servicesAnswer(const QString& externalUrl, const QString& internalUrl);
HttpResponse otherUrlAnswer(const QString& url);
HttpResponse otherEmailAnswer(const QString& email);
HttpResponse swellingAnswer();

// Three meetings, the first in an hour; not in their order.
HttpResponse meetingsAnswer();

}  // namespace sandbox
