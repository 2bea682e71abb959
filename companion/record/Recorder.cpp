#include "companion/record/Recorder.h"

#include <QPointer>
#include <QRegularExpression>
#include <QThread>
#include <utility>

#include "companion/format/Line.h"
#include "companion/format/ValueCodec.h"

namespace {

using valuecodec::Form;

Line numberedStep(const QString& word, qint64 number, const Content& content) {
  Line step = {{word, number}};
  if (content) step.emplaceBack("content", valuecodec::encodeContent(content, Form::Exact));
  return step;
}

Line postStep(const QString& name, const Dictionary& userInfo) {
  return {{"post", name}, {"userInfo", valuecodec::encodeContent(userInfo, Form::Exact)}};
}

// The step for an event of the host; empty for events of the plug-in.
Line stepOf(const PluginEvent& event, const void* hostPoster) {
  return std::visit(
      Overloaded{[](const CommandToPlugin& triggered) {
                   return numberedStep("command", static_cast<qint64>(triggered.command), triggered.content);
                 },
                 [](const NotificationToPlugin& notified) {
                   return numberedStep("notify", static_cast<qint64>(notified.index), notified.content);
                 },
                 [](const PersonalRoomChange& room) -> Line {
                   return {{"personalRoom",
                            valuecodec::encode(Dictionary{{"join", room.joinUrl}, {"sip", room.sipUrl}})}};
                 },
                 [](const CredentialRequest& request) { return postStep(request.name, request.userInfo); },
                 [hostPoster](const CredentialResponse& response) {
                   const bool isHost = response.poster && response.poster == hostPoster;
                   return isHost ? postStep(response.name, response.userInfo) : Line();
                 },
                 [](const auto&) { return Line(); }},
      event);
}

// The port at which this machine waits for the end of a sign-in is another one each time.
PluginEvent withoutLoopbackPort(const PluginEvent& event) {
  static const QRegularExpression port(QStringLiteral(
      "(?<=[?&])(redirect_uri=http(?:%3A|:)(?:%2F|/){2}(?:127\\.0\\.0\\.1|localhost))(?:%3A|:)[0-9]+"));
  const auto* request = std::get_if<AddressRequest>(&event);
  return request ? AddressRequest{QString(request->address).replace(port, "\\1")} : event;
}

bool isRecorded(const PluginEvent& event) {
  return !std::holds_alternative<KZTraceRecord>(event) && !std::holds_alternative<StoreChange>(event) &&
         !std::holds_alternative<KeychainChange>(event);
}

// Whether the event is reported again when it has ended.
bool hasEnd(const PluginEvent& event) {
  return !std::holds_alternative<CredentialResponse>(event) &&
         !std::holds_alternative<AddressRequest>(event) && !std::holds_alternative<WarningShown>(event);
}

void writeEvent(RecordWriter& writer, const PluginEvent& event, const Line& step) {
  if (!step.isEmpty()) return writer.writeStep(step);
  const Line output = eventLine(withoutLoopbackPort(event));
  if (!output.isEmpty()) writer.writeOutput(output);
}

}  // namespace

Recorder::Recorder(PluginHost* host, RecordWriter::Sink sink, const Options& options)
    : m_writer(std::make_shared<RecordWriter>(std::move(sink), options.clock, options.slack)),
      m_hostPoster(options.hostPoster),
      m_state(options.keychain),
      m_input(m_writer.get(), {.begun = [this] { begin(Actor::Plugin); },
                               .ended = [this] { end(); },
                               .isPluginAtWork = [this] { return isPluginAtWork(); }}) {
  m_writer->writeHeader();
  m_observer = host->addObserver([self = QPointer(this), home = thread(), writer = m_writer,
                                  poster = m_hostPoster](const PluginEvent& event, PluginHost::Phase phase) {
    if (!isRecorded(event)) return;
    if (QThread::currentThread() == home) {
      if (self) self->onEvent(event, phase);
      return;
    }
    Line step = stepOf(event, poster);
    if (!step.isEmpty()) step.emplaceBack("thread", "worker");
    if (phase == PluginHost::Phase::Begin) writeEvent(*writer, event, step);
  });
}

Recorder::~Recorder() {
  m_observer.reset();
  m_input.flush();
  m_writer->close();
}

void Recorder::onEvent(const PluginEvent& event, PluginHost::Phase phase) {
  if (phase == PluginHost::Phase::End) return end();
  m_input.flush();
  if (hasEnd(event)) begin(std::holds_alternative<CommandToHost>(event) ? Actor::Host : Actor::Plugin);
  writeEvent(*m_writer, event, stepOf(event, m_hostPoster));
}

// A change while the plug-in does not run is the host's.
void Recorder::begin(Actor actor) {
  if (!isPluginAtWork()) {
    writeHostChanges();
  } else if (actor == Actor::Host) {
    m_state.accept();
  }
  m_actors.push_back(actor);
}

void Recorder::end() {
  // A recording may begin inside a call.
  if (m_actors.empty()) return;
  const Actor actor = m_actors.back();
  m_actors.pop_back();
  if (actor == Actor::Host) {
    writeHostChanges();
  } else if (!isPluginAtWork()) {
    m_state.accept();
  }
}

void Recorder::writeHostChanges() {
  const QList<Line> steps = m_state.changes();
  if (!steps.isEmpty()) m_input.flush();
  for (const Line& step : steps) m_writer->writeStep(step);
}
