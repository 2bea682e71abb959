#include "companion/record/RecordWriter.h"

#include <QGuiApplication>
#include <QLocale>
#include <QMutexLocker>
#include <algorithm>
#include <utility>

namespace {

using namespace std::chrono_literals;

constexpr auto kShortestPause = 50ms;
// Nothing in the plug-in takes longer by itself.
constexpr std::chrono::milliseconds kLongestPause = 5s;

}  // namespace

RecordWriter::RecordWriter(Sink sink, Clock clock, std::chrono::milliseconds slack)
    : m_sink(std::move(sink)), m_clock(std::move(clock)), m_slack(slack), m_lastTime(m_clock()) {}

void RecordWriter::writeHeader() {
  const QString header =
      QStringLiteral("# Recorded by %1 %2 with Qt %3 on %4, language %5. Passwords and tokens are replaced.")
          .arg(QCoreApplication::applicationName(), QStringLiteral(KZ_VERSION), QLatin1String(qVersion()),
               QGuiApplication::platformName(), QLocale().name());
  const QMutexLocker lock(&m_mutex);
  write(header.toUtf8());
}

void RecordWriter::writeStep(const Line& step) {
  const QMutexLocker lock(&m_mutex);
  writePause();
  write(textOf(step));
}

void RecordWriter::writeOutput(const Line& output) {
  const QMutexLocker lock(&m_mutex);
  writePause();
  write(outputMark + textOf(output));
}

void RecordWriter::writePassword(const QString& field, const QString& text) {
  const QMutexLocker lock(&m_mutex);
  writePause();
  write(lineText({{"type", field}, {"text", m_secrets.nameOf(text)}}));
}

void RecordWriter::writeUnnamed(const QString& what) {
  const QByteArray line = "# No step can say it: " + what.toUtf8();
  const QMutexLocker lock(&m_mutex);
  if (line != m_lastLine) write(line);
}

void RecordWriter::close() {
  const QMutexLocker lock(&m_mutex);
  m_isClosed = true;
}

QByteArray RecordWriter::textOf(const Line& line) {
  Line open = line;
  for (auto& [member, value] : open) value = m_secrets.withoutSecrets(member, value);
  return lineText(open);
}

void RecordWriter::writePause() {
  const auto now = m_clock();
  const auto pause = now - std::exchange(m_lastTime, now);
  if (pause <= kShortestPause) return;
  const auto wait = std::min(pause + m_slack, kLongestPause);
  write(lineText({{"wait", static_cast<qint64>(wait.count())}}));
}

void RecordWriter::write(const QByteArray& line) {
  m_lastLine = line;
  if (!m_isClosed) m_isClosed = !m_sink(line);
}
