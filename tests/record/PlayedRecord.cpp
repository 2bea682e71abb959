#include "tests/record/PlayedRecord.h"

#include <QFile>

QStringList linesOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

QStringList stepsIn(const QStringList& record) {
  QStringList steps = record;
  steps.removeIf([](const QString& line) { return line.startsWith(u'#') || line.startsWith("{\"set\""); });
  return steps;
}

PlayedRecord::PlayedRecord(const QStringList& script) : m_run(runSession(script, {"--record", path()})) {}

SessionRun PlayedRecord::check(const QStringList& lines) const {
  return runSession(lines, {"--check"});
}
