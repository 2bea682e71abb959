#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "tests/kit/SessionRun.h"

QStringList linesOf(const QString& path);
// Without comments and without the lines that set the host's state.
QStringList stepsIn(const QStringList& record);

// Records that prefs-session makes, in a folder of their own.
class PlayedRecord final {
 public:
  // Plays the script and records it.
  explicit PlayedRecord(const QStringList& script);

  const SessionRun& run() const { return m_run; }
  QStringList lines() const { return linesOf(path()); }
  QString path() const { return m_folder.filePath("record.jsonl"); }
  QByteArray bytes() const { return lines().join(u'\n').toUtf8(); }
  // Plays the record, or what was made of it, and compares.
  SessionRun check(const QStringList& lines) const;
  SessionRun check() const { return check(lines()); }

 private:
  QTemporaryDir m_folder;
  SessionRun m_run;
};
