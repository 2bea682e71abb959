#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

// A run of prefs-session with a script.
struct SessionRun {
  int status = -1;
  QStringList lines;  // of standard output
  QString complaints;

  QJsonObject object(qsizetype line) const;
  QJsonObject last() const { return object(lines.size() - 1); }
  // The result of the last line.
  QJsonObject result() const { return last().value("result").toObject(); }
};

// The described view of that name, at or below this one.
QJsonObject viewNamed(const QJsonObject& view, const QString& name);

// With the real plug-in; the script is passed on standard input.
SessionRun runSession(const QStringList& script, const QStringList& options = {});

// With the plug-in in that file.
SessionRun runSessionWith(const QString& plugin, const QStringList& script, const QStringList& options = {});
