#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include "sandbox/HttpMessage.h"

namespace sandbox {

HttpResponse challengeResponse(const QList<QByteArray>& challenges);

// The responses of Autodiscover.
HttpResponse servicesResponse(const QString& externalUrl, const QString& internalUrl);
HttpResponse otherUrlResponse(const QString& url);
HttpResponse otherEmailResponse(const QString& email);
// Its entities expand to gigabytes.
HttpResponse entityBombResponse();

// Three meetings, the first in an hour, not sorted by time.
HttpResponse meetingsResponse();

}  // namespace sandbox
