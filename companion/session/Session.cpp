#include "companion/session/Session.h"

#include <QStringList>
#include <algorithm>

#include "companion/format/EventLine.h"
#include "companion/session/EventPump.h"
#include "companion/session/StepReader.h"

Session::Session(PluginHost* host, LineWriter* writer, Trace trace)
    : m_writer(writer),
      m_pluginSteps(host),
      m_userSteps(writer),
      m_hostSteps(host, writer),
      m_scriptSteps(writer) {
  m_pluginSteps.addTo(&m_table);
  m_userSteps.addTo(&m_table);
  m_hostSteps.addTo(&m_table);
  m_scriptSteps.addTo(&m_table);
  m_observer = host->addObserver([this, trace](const PluginEvent& event, PluginHost::Phase phase) {
    if (phase == PluginHost::Phase::Begin) print(event, trace);
  });
}

void Session::print(const PluginEvent& event, Trace trace) {
  const auto* response = std::get_if<CredentialResponse>(&event);
  const bool isOwn = response && response->poster == poster();
  const bool isUnwanted = std::holds_alternative<KZTraceRecord>(event) && trace == Trace::Off;
  if (isOwn || isUnwanted) return;
  const QList<LineWriter::Member> line = eventLine(event);
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
