#include "companion/session/Session.h"

#include <QStringList>
#include <QUrl>
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

Session::Session(PluginHost* host, LineWriter* writer, Trace trace)
    : m_host(host),
      m_writer(writer),
      m_pluginSteps(host),
      m_userSteps(writer),
      m_hostSteps(host, writer),
      m_scriptSteps(writer) {
  m_pluginSteps.addTo(&m_table);
  m_userSteps.addTo(&m_table);
  m_hostSteps.addTo(&m_table);
  m_scriptSteps.addTo(&m_table);
  m_watch.emplace(handlers(trace));
  host->setCommandHandler([writer](quint64 number, const Content& content) {
    writer->print({{"sent", static_cast<qint64>(number)},
                   {"name", kzCommandName(number)},
                   {"content", valuecodec::encodeContent(content)}});
  });
}

BorderWatch::Handlers Session::handlers(Trace trace) {
  LineWriter* writer = m_writer;
  BorderWatch::Handlers handlers;
  handlers.posted = [writer, own = m_pluginSteps.poster()](const KZNotification& notification) {
    if (notification.object == own) return;
    writer->print(
        {{"posted", notification.name}, {"userInfo", valuecodec::encodeContent(notification.userInfo)}});
  };
  handlers.opened = [writer](const QUrl& url) {
    writer->print({{"opened", url.toString(QUrl::FullyEncoded)}});
    return true;
  };
  handlers.warned = [writer](const QString& title, const QString& message) {
    writer->print({{"warning", QJsonObject{{"title", title}, {"message", message}}}});
  };
  handlers.traced = [writer, trace](const KZTraceRecord& record) {
    if (trace == Trace::Off) return;
    writer->print({{"trace", levelName(record.level)}, {"method", record.method}, {"text", record.text}});
  };
  return handlers;
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
  m_watch.reset();
  m_host->setCommandHandler({});
  m_writer->print({{"error", reason}, {"line", lineNumber}});
  return End::StepFailed;
}
