#include "companion/record/Recorder.h"

#include <QGuiApplication>
#include <QLocale>
#include <QMutexLocker>
#include <QThread>
#include <algorithm>
#include <mutex>
#include <utility>

#include "companion/record/LateSecrets.h"
#include "companion/session/CrossingLine.h"
#include "companion/session/ValueCodec.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kShortestPause = 50ms;
// Nothing in the plug-in takes longer by itself.
constexpr auto kLongestPause = 5s;

}  // namespace

Recorder::Recorder(Border* border, Sink sink, Options options)
    : m_sink(std::move(sink)),
      m_options(std::move(options)),
      m_state(m_options.keychain),
      m_input(inputHandlers()),
      m_lastWritten(m_options.clock()) {
  writeHeader();
  m_observer = border->addObserver([this, gate = m_gate](const Crossing& crossing) {
    if (crossing.kind == Crossing::Kind::Trace) return;
    // A worker's crossing that is under way when the recording ends must not outlive it.
    std::unique_lock lock(gate->mutex, std::defer_lock);
    if (QThread::currentThread() != gate->home) lock.lock();
    if (gate->isOpen) hear(crossing);
  });
  connect(border, &Border::loading, this, [this] {
    m_state.loadingBegins();
    m_actors.push_back(Actor::Loader);
  });
  connect(border, &Border::returned, this, &Recorder::end);
}

Recorder::~Recorder() {
  stop();
}

void Recorder::stop() {
  m_observer.reset();
  {
    const QMutexLocker lock(&m_gate->mutex);
    m_gate->isOpen = false;
  }
  m_input.tellPending();
  const QMutexLocker lock(&m_mutex);
  m_isOver = true;
}

QByteArray Recorder::revised(const QByteArray& line) {
  const QByteArray mark = line.startsWith(outputMark) ? QByteArray(outputMark) : QByteArray();
  const auto form = mark.isEmpty() ? valuecodec::Form::Exact : valuecodec::Form::Printed;
  const QMutexLocker lock(&m_mutex);
  return mark + withoutLateSecrets(line.mid(mark.size()), form, &m_vault);
}

InputWatch::Handlers Recorder::inputHandlers() {
  return {.begun = [this] { begin(Actor::User); },
          .ended = [this] { end(); },
          .step = [this](const Step& step) { writeStep(step); },
          .isPluginAtWork = [this] { return isPluginAtWork(); },
          .typed = [this](const TypedText::Edit& edit) { writeTyped(edit); },
          .unnamed = [this](const QString& what) { writeUnnamed(what); }};
}

void Recorder::hear(const Crossing& crossing) {
  if (QThread::currentThread() == thread()) m_input.tellPending();
  const Crossing open = withoutSecrets(crossing);
  switch (crossing.kind) {
    case Crossing::Kind::CommandToPlugin:
    case Crossing::Kind::Notification: {
      begin(Actor::Plugin);
      const bool isCommand = crossing.kind == Crossing::Kind::CommandToPlugin;
      Step step = {{isCommand ? "command" : "notify", static_cast<qint64>(crossing.number)}};
      if (open.content)
        step.emplaceBack("content", valuecodec::encodeContent(open.content, valuecodec::Form::Exact));
      return writeStep(step);
    }
    case Crossing::Kind::PersonalRoom:
      begin(Actor::Plugin);
      return writeStep({{"personalRoom", valuecodec::encodeContent(open.content)}});
    case Crossing::Kind::CommandToHost:
      begin(Actor::Host);
      return writeOutput(open);
    case Crossing::Kind::Challenge:
      return hearPost(open);
    case Crossing::Kind::Answer:
      return crossing.poster && crossing.poster == m_options.hostPoster ? hearPost(open) : writeOutput(open);
    case Crossing::Kind::Address:
    case Crossing::Kind::Warning:
      return writeOutput(open);
    case Crossing::Kind::Trace:
      return;
  }
}

void Recorder::hearPost(const Crossing& crossing) {
  const bool isOnMainThread = QThread::currentThread() == thread();
  const bool isChallenge = crossing.kind == Crossing::Kind::Challenge;
  if (isOnMainThread && isChallenge) begin(Actor::Plugin);
  Step step = {{"post", crossing.name},
               {"userInfo", valuecodec::encodeContent(crossing.content, valuecodec::Form::Exact)}};
  if (!isOnMainThread) step.emplaceBack("thread", "worker");
  writeStep(step);
}

// What changes while the plug-in is not at work is the host's doing.
void Recorder::begin(Actor actor) {
  if (!isPluginAtWork()) {
    writeHostChanges();
  } else if (actor == Actor::Host) {
    m_state.accept();
  }
  m_actors.push_back(actor);
}

void Recorder::end() {
  // A recording may begin inside of a call.
  if (m_actors.empty()) return;
  const Actor actor = m_actors.back();
  m_actors.pop_back();
  if (actor == Actor::Loader) {
    m_state.loadingEnded();
  } else if (actor == Actor::Host) {
    writeHostChanges();
  } else if (!isPluginAtWork()) {
    m_state.accept();
  }
}

void Recorder::writeHostChanges() {
  const QList<Step> steps = m_state.changes();
  if (!steps.isEmpty()) m_input.tellPending();
  for (const Step& step : steps) {
    Step open;
    {
      const QMutexLocker lock(&m_mutex);
      for (const auto& [key, value] : step) {
        const QVariant whole = m_vault.withoutSecrets(QVariant(Dictionary{{key, value.toVariant()}}));
        open.emplaceBack(key, QJsonValue::fromVariant(whole.toMap().value(key)));
      }
    }
    writeStep(open);
  }
}

Crossing Recorder::withoutSecrets(const Crossing& crossing) {
  const QMutexLocker lock(&m_mutex);
  Crossing open = crossing;
  open.content = m_vault.withoutSecrets(crossing.content);
  open.text = crossing.kind == Crossing::Kind::Address ? m_vault.addressWithoutSecrets(crossing.text)
                                                       : m_vault.withoutSecrets(crossing.text);
  // What else has a name has it from the code.
  if (crossing.kind == Crossing::Kind::Warning) open.name = m_vault.withoutSecrets(crossing.name);
  return open;
}

void Recorder::writeHeader() {
  const QString header =
      QStringLiteral("# Recorded by %1 %2 with Qt %3 on %4, language %5. Passwords and tokens are replaced.")
          .arg(QCoreApplication::applicationName(), QStringLiteral(KZ_VERSION), QLatin1String(qVersion()),
               QGuiApplication::platformName(), QLocale().name());
  const QMutexLocker lock(&m_mutex);
  write(header.toUtf8());
}

void Recorder::writeStep(const Step& step) {
  const QMutexLocker lock(&m_mutex);
  writePause();
  write(LineWriter::textOf(step));
}

void Recorder::writeOutput(const Crossing& crossing) {
  const QMutexLocker lock(&m_mutex);
  writePause();
  write(outputMark + LineWriter::textOf(crossingLine(crossing)));
}

void Recorder::writeTyped(const TypedText::Edit& edit) {
  const QMutexLocker lock(&m_mutex);
  const QString text = edit.isSecret ? m_vault.nameOf(edit.text) : m_vault.withoutSecrets(edit.text);
  writePause();
  write(LineWriter::textOf({{"type", edit.field}, {"text", text}}));
}

void Recorder::writeUnnamed(const QString& what) {
  const QMutexLocker lock(&m_mutex);
  write("# No step can say it: " + what.toUtf8());
}

void Recorder::write(const QByteArray& line) {
  if (!m_isOver) m_isOver = !m_sink(line);
}

void Recorder::writePause() {
  const auto now = m_options.clock();
  const auto pause = now - m_lastWritten;
  m_lastWritten = now;
  if (pause <= kShortestPause) return;
  const auto longest = std::chrono::milliseconds(kLongestPause);
  write(LineWriter::textOf(
      {{"wait", static_cast<qint64>(std::min(pause + m_options.slack, longest).count())}}));
}
