#include "companion/session/Session.h"

#include <QStringList>
#include <algorithm>

#include "companion/session/EventPump.h"
#include "companion/session/StepReader.h"
#include "companion/session/ValueCodec.h"
#include "host/KZFoundation/KZCommands.h"

namespace {

QString levelName(KZTraceLevel level) {
  switch (level) {
    case KZTraceLevel::Info:
      return QStringLiteral("info");
    case KZTraceLevel::Warning:
      return QStringLiteral("warning");
    case KZTraceLevel::Error:
      break;
  }
  return QStringLiteral("error");
}

}  // namespace

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
  switch (crossing.kind) {
    case Crossing::Kind::CommandToHost:
      return m_writer->print({{"sent", static_cast<qint64>(crossing.number)},
                              {"name", kzCommandName(crossing.number)},
                              {"content", valuecodec::encodeContent(crossing.content)}});
    case Crossing::Kind::Answer:
      if (crossing.poster == m_pluginSteps.poster()) return;
      return m_writer->print(
          {{"posted", crossing.name}, {"userInfo", valuecodec::encodeContent(crossing.content)}});
    case Crossing::Kind::Address:
      return m_writer->print({{"opened", crossing.text}});
    case Crossing::Kind::Warning:
      return m_writer->print(
          {{"warning", QJsonObject{{"title", crossing.name}, {"message", crossing.text}}}});
    case Crossing::Kind::Trace:
      if (trace == Trace::Off) return;
      return m_writer->print(
          {{"trace", levelName(crossing.level)}, {"method", crossing.name}, {"text", crossing.text}});
    // What the script did itself.
    case Crossing::Kind::CommandToPlugin:
    case Crossing::Kind::Notification:
    case Crossing::Kind::PersonalRoom:
    case Crossing::Kind::Challenge:
      return;
  }
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
