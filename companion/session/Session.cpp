#include "companion/session/Session.h"

#include <QHash>
#include <QJsonDocument>
#include <array>
#include <cstdio>
#include <utility>

#include "companion/session/EventPump.h"
#include "host/KZUtility/KZKeyChainHandle.h"

namespace {

constexpr qsizetype kLongestLine = 64 * 1024 * 1024;

const QHash<QString, StepFunction*>& stepFunctions() {
  static const QHash<QString, StepFunction*> functions = {
      {"command", steps::command},
      {"notify", steps::notify},
      {"post", steps::post},
      {"personalRoom", steps::personalRoom},
      {"click", steps::click},
      {"type", steps::type},
      {"key", steps::key},
      {"choose", steps::choose},
      {"pane", steps::pane},
      {"close", steps::close},
      {"activate", steps::activate},
      {"get", steps::get},
      {"set", steps::set},
      {"wait", steps::wait},
      {"echo", steps::echo},
      {"measure", steps::measure},
      {"screenshot", steps::screenshot},
  };
  return functions;
}

// With its end; empty behind the last line. Memory grows with the line: QIODevice's own bound is allocated
// for every line. Of a line that is too long the first part is read.
QByteArray readLine(QIODevice* device) {
  QByteArray line;
  std::array<char, 4096> part;
  while (line.size() <= kLongestLine && !line.endsWith('\n')) {
    const qint64 size = device->readLine(part.data(), part.size());
    if (size <= 0) break;
    line.append(part.data(), size);
  }
  return line;
}

}  // namespace

// One call writes the line: lines from several threads do not mix.
void printLine(const Line& line) {
  const QByteArray text = lineText(line) + '\n';
  std::fwrite(text.constData(), 1, static_cast<size_t>(text.size()), stdout);
  std::fflush(stdout);
}

Session::Session(PluginHost* host, Options options) : m_options(std::move(options)), m_context{host} {
  m_observer = host->addObserver([this](const PluginEvent& event, PluginHost::Phase phase) {
    if (phase == PluginHost::Phase::Begin) print(event);
  });
}

void Session::print(const PluginEvent& event) const {
  const auto* response = std::get_if<CredentialResponse>(&event);
  const bool isOwn = response && response->poster == poster();
  const bool isTrace = std::holds_alternative<KZTraceRecord>(event);
  const bool isWrite =
      std::holds_alternative<StoreChange>(event) || std::holds_alternative<KeychainChange>(event);
  if (isOwn || (isTrace && !m_options.isPrintingTrace) || (isWrite && !m_options.isPrintingWrites)) return;
  if (const Line line = eventLine(event); !line.isEmpty()) m_options.print(line);
}

bool Session::play(QIODevice* script) {
  for (int number = 1;; ++number) {
    if (m_options.awaitLine) m_options.awaitLine();
    const QByteArray line = readLine(script);
    if (line.isEmpty()) return true;
    const bool isTooLong = line.size() > kLongestLine;
    const QByteArray step = line.trimmed();
    if (!isTooLong && (step.isEmpty() || step.startsWith('#'))) continue;
    const StepResult result =
        isTooLong ? StepResult::failed(QStringLiteral("the line is too long")) : playStep(step);
    if (!result.failure.isEmpty()) {
      // The error is the last line: nothing that the plug-in still does is printed.
      m_observer.reset();
      m_options.print({{"error", result.failure}, {"line", number}});
      return false;
    }
    if (!result.line.isEmpty()) m_options.print(result.line);
    eventpump::settle();
    // What a step has written is kept before the next one, as far as the keyring answers.
    KZKeyChainHandle::sharedInstance().settle();
  }
}

StepResult Session::playStep(const QByteArray& text) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(text, &error);
  if (error.error != QJsonParseError::NoError) {
    return StepResult::failed(
        QStringLiteral("not JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset));
  }
  if (!document.isObject()) return StepResult::failed(QStringLiteral("a step is a JSON object"));
  Step step(document.object());
  QStringList words = step.keys();
  words.removeIf([](const QString& word) { return !stepFunctions().contains(word); });
  if (words.isEmpty())
    return StepResult::failed(QStringLiteral("unknown step: %1").arg(step.keys().join(QStringLiteral(", "))));
  if (words.size() > 1)
    return StepResult::failed(
        QStringLiteral("several steps in one line: %1").arg(words.join(QStringLiteral(", "))));
  return stepFunctions().value(words.first())(step, m_context);
}
