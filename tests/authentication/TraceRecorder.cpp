#include "tests/authentication/TraceRecorder.h"

#include <QMutexLocker>

namespace {

QString levelName(KZTraceLevel level) {
  if (level == KZTraceLevel::Error) return QStringLiteral("error ");
  return level == KZTraceLevel::Warning ? QStringLiteral("warning ") : QStringLiteral("info ");
}

}  // namespace

TraceRecorder::TraceRecorder() {
  setKZTraceSink([this](const KZTraceRecord& record) {
    const QMutexLocker lock(&m_mutex);
    m_lines.append(levelName(record.level) + record.text);
  });
}

TraceRecorder::~TraceRecorder() {
  setKZTraceSink({});
}

QStringList TraceRecorder::lines() {
  const QMutexLocker lock(&m_mutex);
  return m_lines;
}
