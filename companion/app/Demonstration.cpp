#include "companion/app/Demonstration.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>

#include "companion/app/CompanionWindow.h"
#include "companion/session/EventPump.h"
#include "companion/session/Session.h"

namespace {

const QString kScript = QStringLiteral(":/companion/demonstration.jsonl");
const QString kCompanionPicture = QStringLiteral("companion.png");

QStringList picturesOf(const QByteArray& script) {
  QStringList names;
  for (const QByteArray& line : script.split('\n')) {
    const QString name = QJsonDocument::fromJson(line).object().value(QLatin1String("screenshot")).toString();
    if (!name.isEmpty()) names.append(name);
  }
  return names;
}

}  // namespace

QStringList playDemonstration(PluginHost* host, CompanionWindow* window, const QString& folder) {
  // The script names its pictures without a folder.
  if (!QDir().mkpath(folder) || !QDir::setCurrent(folder)) return {};
  QFile script(kScript);
  if (!script.open(QIODevice::ReadOnly)) return {};
  window->show();
  Session session(host, {.print = [](const Line&) {}});
  if (!session.play(&script)) return {};
  window->become(demouser::Variant::SignedIn);
  eventpump::settle();
  if (!window->grab().save(kCompanionPicture, "PNG")) return {};
  script.seek(0);
  QStringList paths;
  for (const QString& name : picturesOf(script.readAll()) + QStringList{kCompanionPicture}) {
    paths.append(QDir::cleanPath(QDir(folder).absoluteFilePath(name)));
  }
  return paths;
}
