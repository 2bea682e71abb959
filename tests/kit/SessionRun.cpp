#include "tests/kit/SessionRun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

QJsonObject SessionRun::object(qsizetype line) const {
  return QJsonDocument::fromJson(lines.value(line).toUtf8()).object();
}

SessionRun runSession(const QStringList& script, const QStringList& options) {
  return runSessionWith(PREFERENCES, script, options);
}

SessionRun runSessionWith(const QString& plugin, const QStringList& script, const QStringList& options) {
  QProcess session;
  session.start(PREFS_SESSION, QStringList{"--plugin", plugin} + options);
  session.write(script.join(u'\n').toUtf8());
  session.closeWriteChannel();
  SessionRun run;
  if (!session.waitForFinished(60'000)) return run;
  run.status = session.exitStatus() == QProcess::NormalExit ? session.exitCode() : -1;
  run.lines = QString::fromUtf8(session.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
  run.complaints = QString::fromUtf8(session.readAllStandardError());
  return run;
}

QJsonObject viewNamed(const QJsonObject& view, const QString& name) {
  if (view.value("name") == name || (view.value("class") == "drawn" && view.value("text") == name))
    return view;
  for (const QJsonValue& child : view.value("children").toArray()) {
    const QJsonObject found = viewNamed(child.toObject(), name);
    if (!found.isEmpty()) return found;
  }
  return {};
}
