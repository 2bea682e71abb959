#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

// A meeting site of the sandbox, for the user to try.
struct SandboxSite {
  QString site;  // its host name
  QString meaning;
};

// `description` is the "site" of what kz-sandbox prints first.
QList<SandboxSite> sandboxSites(const QJsonObject& description);
