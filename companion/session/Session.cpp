#include "companion/session/Session.h"

#include <QStringList>
#include <algorithm>

#include "companion/session/CrossingLine.h"
#include "companion/session/EventPump.h"
#include "companion/session/StepReader.h"

Session::Session(Border* border, LineWriter* writer, Trace trace)
    : m_writer(writer),
      m_pluginSteps(border),
      m_userSteps(writer),
      m_hostSteps(border, writer),
      m_scriptSteps(writer) {
  m_pluginSteps.addTo(&m_table);
  m_userSteps.addTo(&m_table);
  m_hostSteps.addTo(&m_table);
  m_scriptSteps.addTo(&m_table);
  m_observer = border->addObserver([this, trace](const Crossing& crossing) { print(crossing, trace); });
}

void Session::print(const Crossing& crossing, Trace trace) {
  const bool isOwn = crossing.kind == Crossing::Kind::Answer && crossing.poster == poster();
  const bool isUnwanted = crossing.kind == Crossing::Kind::Trace && trace == Trace::Off;
  if (isOwn || isUnwanted) return;
  const QList<LineWriter::Member> line = crossingLine(crossing);
  if (!line.isEmpty()) m_writer->print(line);
}

Session::End Session::play(QIODevice* script) {
  StepReader reader(script);
  for (;;) {
    switch (reader.next()) {
      case StepReader::Answer::End:
        return End::Played;
      case StepReader::Answer::Unreadable:
        return fail(reader.errorText(), reader.lineNumber());
      case StepReader::Answer::Step:
        break;
    }
    const StepOutcome outcome = playStep(reader.step());
    if (!outcome.isPlayed()) return fail(outcome.reason(), reader.lineNumber());
    eventpump::settle();
  }
}

StepOutcome Session::playStep(const QJsonObject& step) {
  QStringList words = step.keys();
  words.removeIf([this](const QString& word) { return !m_table.contains(word); });
  if (words.isEmpty()) {
    return StepOutcome::failed(
        QStringLiteral("unknown step: %1").arg(step.keys().join(QStringLiteral(", "))));
  }
  if (words.size() > 1) {
    return StepOutcome::failed(
        QStringLiteral("several steps in one line: %1").arg(words.join(QStringLiteral(", "))));
  }
  StepArguments arguments(step);
  return m_table.value(words.first())(arguments);
}

Session::End Session::fail(const QString& reason, int lineNumber) {
  // The error is the last line: nothing that the plug-in still does is printed.
  m_observer.reset();
  m_writer->print({{"error", reason}, {"line", lineNumber}});
  return End::StepFailed;
}
