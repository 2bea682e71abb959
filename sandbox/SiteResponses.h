#pragma once

#include <QString>
#include <QUrl>

#include "sandbox/Cases.h"
#include "sandbox/HttpMessage.h"

namespace sandbox {

// A meeting service's response for that path; its links lead to the pages below `pages`.
HttpResponse siteResponse(Case what, const QString& path, const QUrl& pages);

// The page for a browser at that path.
HttpResponse sitePage(const QString& path);

}  // namespace sandbox
