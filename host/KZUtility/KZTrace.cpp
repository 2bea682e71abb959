#include "host/KZUtility/KZTrace.h"

#include <QMutex>
#include <QMutexLocker>
#include <atomic>
#include <cstdio>
#include <memory>

#include "host/KZUtility/KZSecretMask.h"
#include "host/KZUtility/KZTraceText.h"

namespace {

void writeToStandardError(const KZTraceRecord& record) {
  static constexpr const char* levels[] = {"info", "warning", "error"};
  // A record stays one line whatever is in its values.
  QString text = record.text;
  text.replace(QLatin1Char('\n'), QLatin1String("\\n")).replace(QLatin1Char('\r'), QLatin1String("\\r"));
  const QByteArray line =
      QStringLiteral("%1 [%2] %3 %4\n")
          .arg(QLatin1String(levels[static_cast<int>(record.level)]), record.module, record.method, text)
          .toUtf8();
  std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

struct TraceState {
  QMutex mutex;
  std::shared_ptr<const KZTraceSink> sink = std::make_shared<const KZTraceSink>(writeToStandardError);
};

// Asked before every record, so it stands outside the state and its guard.
constinit std::atomic<bool> isTraceHeard = true;

TraceState& traceState() {
  // Never destroyed: objects that outlive the application still trace.
  static TraceState* const state = new TraceState;
  return *state;
}

void replaceSink(std::shared_ptr<const KZTraceSink> sink) {
  TraceState& state = traceState();
  {
    const QMutexLocker lock(&state.mutex);
    state.sink.swap(sink);
    isTraceHeard.store(state.sink != nullptr, std::memory_order_relaxed);
  }
  // The old sink goes here, unlocked: what it holds may trace.
}

QString formatted(const char* format, const std::vector<kztrace::Argument>& arguments) {
  const std::string_view text(format);
  if (arguments.empty()) return QString::fromUtf8(format);
  QString result;
  std::size_t begin = 0;
  for (const kztrace::Argument& argument : arguments) {
    const std::size_t directive = text.find('%', begin);
    if (directive == std::string_view::npos) break;
    result += QString::fromUtf8(text.data() + begin, static_cast<qsizetype>(directive - begin));
    result += kzTraceText(argument.value());
    begin = directive + 2;
  }
  return result + QString::fromUtf8(text.data() + begin);
}

}  // namespace

void setKZTraceSink(KZTraceSink sink) {
  if (!sink) sink = writeToStandardError;
  replaceSink(std::make_shared<const KZTraceSink>(std::move(sink)));
}

void muteKZTrace() {
  replaceSink(nullptr);
}

Dictionary kzMaskSecrets(const Dictionary& dictionary) {
  return kzMaskedValue(dictionary).toMap();
}

Dictionary kzReplaceSecrets(const Dictionary& dictionary, const KZSecretReplacement& replacement) {
  return kzReplacedValue(dictionary, replacement).toMap();
}

namespace kztrace {

QVariant Argument::objectText(const void* object) {
  if (!object) return {};
  return QStringLiteral("<0x%1>").arg(reinterpret_cast<quintptr>(object), 0, 16);
}

bool isHeard() {
  return isTraceHeard.load(std::memory_order_relaxed);
}

void write(KZTraceLevel level, const char* module, const char* method, const char* format,
           const std::vector<Argument>& arguments) {
  std::shared_ptr<const KZTraceSink> sink;
  {
    TraceState& state = traceState();
    const QMutexLocker lock(&state.mutex);
    sink = state.sink;
  }
  if (!sink) return;
  (*sink)({.level = level,
           .module = QString::fromUtf8(module),
           .method = kzMethodName(method),
           .text = formatted(format, arguments)});
}

}  // namespace kztrace
