#include "companion/runtime/PluginLocation.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStringList>

QString defaultPluginPath() {
  const QDir programs(QCoreApplication::applicationDirPath());
  const QStringList places = {QStringLiteral("../lib/KZPreference.so"),
                              QStringLiteral("../lib/brenn-mivra/KZPreference.so")};
  for (const QString& place : places) {
    const QString path = QDir::cleanPath(programs.filePath(place));
    if (QFileInfo::exists(path)) return path;
  }
  return QDir::cleanPath(programs.filePath(places.first()));
}
