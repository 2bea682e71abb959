#include "companion/session/StepReader.h"

#include <QJsonDocument>

namespace {

constexpr qint64 kLongestLine = 64 * 1024 * 1024;

}  // namespace

StepReader::Answer StepReader::next() {
  for (;;) {
    const QByteArray line = m_device->readLine(kLongestLine + 1);
    if (line.isEmpty()) return Answer::End;
    ++m_lineNumber;
    if (line.size() >= kLongestLine) {
      m_errorText = QStringLiteral("the line is too long");
      return Answer::Unreadable;
    }
    const QByteArray step = line.trimmed();
    if (!step.isEmpty() && !step.startsWith('#')) return parse(step);
  }
}

StepReader::Answer StepReader::parse(const QByteArray& line) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(line, &error);
  if (error.error != QJsonParseError::NoError) {
    m_errorText = QStringLiteral("not JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset);
    return Answer::Unreadable;
  }
  if (!document.isObject()) {
    m_errorText = QStringLiteral("a step is a JSON object");
    return Answer::Unreadable;
  }
  m_step = document.object();
  return Answer::Step;
}
