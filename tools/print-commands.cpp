// Prints the numbered commands and notifications as JSON, for the documents.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstdio>

#include "host/KZFoundation/KZCommands.h"

int main() {
  QJsonArray toPlugin;
  QJsonArray toHost;
  for (const KZCommandRow& row : kzCommandTable()) {
    QJsonArray& rows = row.direction == KZDirection::ToPlugin ? toPlugin : toHost;
    rows.append(QJsonArray{static_cast<int>(row.number), row.name, row.meaning, row.content});
  }
  QJsonArray notifications;
  for (const KZNotifyRow& row : kzNotifyTable())
    notifications.append(QJsonArray{static_cast<int>(row.index), row.name, row.meaning, row.content});
  const QJsonObject tables{{"commands to the plug-in", toPlugin},
                           {"commands to the host", toHost},
                           {"notifications", notifications}};
  std::puts(QJsonDocument(tables).toJson(QJsonDocument::Compact).constData());
  return 0;
}
