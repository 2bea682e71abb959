#pragma once

#include <QByteArray>
#include <QMutex>
#include <QString>
#include <chrono>
#include <functional>

#include "companion/format/Line.h"
#include "companion/record/SecretNames.h"

// Writes the lines of a record: steps, results as comments between them, and pauses. Secrets are replaced in
// every line. Any thread.
class RecordWriter final {
 public:
  // Takes a line without its end; false ends the record. On the thread that writes.
  using Sink = std::function<bool(const QByteArray& line)>;
  using Clock = std::function<std::chrono::milliseconds()>;

  // The prefix of lines with results.
  static constexpr char outputMark[] = "# <- ";

  // `slack` is added to every pause, so that an event at its end comes before the next step when the record
  // is played.
  RecordWriter(Sink sink, Clock clock, std::chrono::milliseconds slack);

  // The first line: the recording program and its platform.
  void writeHeader();
  void writeStep(const Line& step);
  void writeOutput(const Line& output);
  void writePassword(const QString& field, const QString& text);
  // An action of the user for which there is no step. Not repeated when it is the last line already.
  void writeUnnamed(const QString& what);
  // Waits for a line that is being written; from then on nothing is.
  void close();

 private:
  // With `m_mutex` held.
  QByteArray textOf(const Line& line);
  void writePause();
  void write(const QByteArray& line);

  const Sink m_sink;
  const Clock m_clock;
  const std::chrono::milliseconds m_slack;

  QMutex m_mutex;
  SecretNames m_secrets;
  std::chrono::milliseconds m_lastTime;
  QByteArray m_lastLine;
  bool m_isClosed = false;
};
