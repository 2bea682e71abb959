#include "companion/record/Recorder.h"

#include <QGuiApplication>
#include <QLocale>
#include <QMutexLocker>
#include <QThread>
#include <algorithm>
#include <mutex>
#include <utility>

#include "companion/format/EventLine.h"
#include "companion/format/ValueCodec.h"
#include "companion/record/LateSecrets.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kShortestPause = 50ms;
// Nothing in the plug-in takes longer by itself.
constexpr auto kLongestPause = 5s;

}  // namespace

Recorder::Recorder(PluginHost* host, Sink sink, Options options)
    : m_sink(std::move(sink)),
      m_options(std::move(options)),
      m_state(m_options.keychain),
      m_input(inputHandlers()),
      m_lastWritten(m_options.clock()) {
  writeHeader();
  m_observer = host->addObserver([this, gate = m_gate](const PluginEvent& event, PluginHost::Phase phase) {
    // A worker's event that is under way when the recording ends must not outlive it.
    std::unique_lock lock(gate->mutex, std::defer_lock);
    if (QThread::currentThread() != gate->home) lock.lock();
    if (gate->isOpen) onEvent(event, phase);
  });
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

void Recorder::onEvent(const PluginEvent& event, PluginHost::Phase phase) {
  const bool isUnrecorded = std::holds_alternative<KZTraceRecord>(event) ||
                            std::holds_alternative<StoreChange>(event) ||
                            std::holds_alternative<KeychainChange>(event);
  if (isUnrecorded) return;
  if (phase == PluginHost::Phase::End) return end();
  if (QThread::currentThread() == thread()) m_input.tellPending();
  onBegin(withoutSecrets(event));
}

void Recorder::onBegin(const PluginEvent& event) {
  using valuecodec::Form;
  const auto numbered = [this](const QString& word, qint64 number, const Content& content) {
    begin(Actor::Plugin);
    Step step = {{word, number}};
    if (content) step.emplaceBack("content", valuecodec::encodeContent(content, Form::Exact));
    writeStep(step);
  };
  std::visit(Overloaded{[this](const PluginLoad&) {
                          m_state.loadingBegins();
                          m_actors.push_back(Actor::Loader);
                        },
                        [&](const CommandToPlugin& triggered) {
                          numbered("command", static_cast<qint64>(triggered.command), triggered.content);
                        },
                        [&](const NotificationToPlugin& notified) {
                          numbered("notify", static_cast<qint64>(notified.index), notified.content);
                        },
                        [this](const PersonalRoomChange& room) {
                          begin(Actor::Plugin);
                          Dictionary given;
                          if (!room.joinUrl.isNull()) given.insert(QStringLiteral("join"), room.joinUrl);
                          if (!room.sipUrl.isNull()) given.insert(QStringLiteral("sip"), room.sipUrl);
                          writeStep({{"personalRoom", valuecodec::encodeContent(given)}});
                        },
                        [&](const CommandToHost& sent) {
                          begin(Actor::Host);
                          writeOutput(sent);
                        },
                        [this](const CredentialRequest& request) {
                          if (QThread::currentThread() == thread()) begin(Actor::Plugin);
                          writePost(request.name, request.userInfo);
                        },
                        [this](const CredentialResponse& response) {
                          const bool isHost = response.poster && response.poster == m_options.hostPoster;
                          if (isHost) return writePost(response.name, response.userInfo);
                          writeOutput(response);
                        },
                        [this](const auto& output) { writeOutput(output); }},
             event);
}

void Recorder::writePost(const QString& name, const Dictionary& userInfo) {
  Step step = {{"post", name}, {"userInfo", valuecodec::encodeContent(userInfo, valuecodec::Form::Exact)}};
  if (QThread::currentThread() != thread()) step.emplaceBack("thread", "worker");
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

PluginEvent Recorder::withoutSecrets(const PluginEvent& event) {
  const QMutexLocker lock(&m_mutex);
  PluginEvent open = event;
  const auto openTexts = [this](auto&... texts) { ((texts = m_vault.withoutSecrets(texts)), ...); };
  const auto openUserInfo = [this](auto& posted) {
    posted.userInfo = m_vault.withoutSecrets(Content(posted.userInfo)).value_or(Dictionary());
  };
  std::visit(Overloaded{[this](AddressRequest& request) {
                          request.address = m_vault.addressWithoutSecrets(request.address);
                        },
                        [&](WarningShown& warning) { openTexts(warning.title, warning.message); },
                        [&](CredentialRequest& request) { openUserInfo(request); },
                        [&](CredentialResponse& response) { openUserInfo(response); },
                        [this](auto& other) {
                          if constexpr (requires { other.content; })
                            other.content = m_vault.withoutSecrets(other.content);
                        }},
             open);
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

void Recorder::writeOutput(const PluginEvent& event) {
  const QMutexLocker lock(&m_mutex);
  writePause();
  write(outputMark + LineWriter::textOf(eventLine(event)));
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
