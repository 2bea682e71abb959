#include "companion/record/RecordCheck.h"

#include <QJsonDocument>
#include <QMutexLocker>

#include "companion/record/RecordWriter.h"

namespace {

// What the line says came out; empty when it cannot be read. Nothing for another line.
std::optional<QJsonObject> outputIn(const QByteArray& line) {
  const QByteArray mark = RecordWriter::outputMark;
  if (!line.startsWith(mark)) return {};
  return QJsonDocument::fromJson(line.mid(mark.size())).object();
}

}  // namespace

RecordCheck::RecordCheck(const QByteArray& record) {
  int number = 0;
  for (const QByteArray& line : record.split('\n')) {
    ++number;
    if (const auto output = outputIn(line)) m_expected.append({number, *output});
  }
}

void RecordCheck::compare(const QByteArray& line) {
  const auto output = outputIn(line);
  const QMutexLocker lock(&m_mutex);
  if (!output || m_difference) return;
  if (m_next == m_expected.size()) {
    m_difference = Difference{0, QJsonValue::Null, *output};
    return;
  }
  const Expectation& expectation = m_expected.at(m_next++);
  if (expectation.output != *output) m_difference = Difference{expectation.line, expectation.output, *output};
}

std::optional<RecordCheck::Difference> RecordCheck::difference() {
  const QMutexLocker lock(&m_mutex);
  if (m_difference || m_next == m_expected.size()) return m_difference;
  const Expectation& missing = m_expected.at(m_next);
  return Difference{missing.line, missing.output, QJsonValue::Null};
}
