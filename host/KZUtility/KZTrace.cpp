#include "host/KZUtility/KZTrace.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QMutexLocker>
#include <atomic>
#include <cstdio>
#include <memory>

#include "host/KZUtility/KZSecretMask.h"

namespace {

void writeToStandardError(const KZTraceRecord& record) {
  // Keeps the record on one line.
  QString text = record.text;
  text.replace(QLatin1Char('\n'), QLatin1String("\\n")).replace(QLatin1Char('\r'), QLatin1String("\\r"));
  const QByteArray line =
      QStringLiteral("%1 [%2] %3 %4\n")
          .arg(QLatin1String(kzTraceLevelName(record.level)), record.module, record.method, text)
          .toUtf8();
  std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

struct TraceState {
  QMutex mutex;
  std::shared_ptr<const KZTraceSink> sink = std::make_shared<const KZTraceSink>(writeToStandardError);
};

// Read before every record, so it needs no lock.
constinit std::atomic<bool> isTraceEnabled = true;

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
    isTraceEnabled.store(state.sink != nullptr, std::memory_order_relaxed);
  }
  // The old sink is destroyed here, without the lock, because its destructor may trace.
}

constexpr qsizetype kLongestText = 1000;
constexpr int kDeepestPrinted = 64;

QString shortened(const QString& text) {
  if (text.size() <= kLongestText) return text;
  const qsizetype length = text.at(kLongestText - 1).isHighSurrogate() ? kLongestText - 1 : kLongestText;
  return QStringLiteral("%1… (%2 characters)").arg(text.left(length)).arg(text.size());
}

QString objectName(const QVariant& value) {
  const auto* object = value.value<QObject*>();
  if (!object) return QStringLiteral("(null)");
  return QStringLiteral("<%1 0x%2>")
      .arg(QLatin1String(object->metaObject()->className()))
      .arg(reinterpret_cast<quintptr>(object), 0, 16);
}

// The text of a value that is neither a dictionary nor a list.
QString leafText(const QVariant& value) {
  if (isMissing(value)) return QStringLiteral("(null)");
  if (value.metaType() == QMetaType::fromType<QByteArray>()) {
    return QStringLiteral("<%1 bytes>").arg(value.toByteArray().size());
  }
  if (value.metaType().flags().testFlag(QMetaType::PointerToQObject)) return objectName(value);
  if (value.metaType() == QMetaType::fromType<QDateTime>()) return value.toDateTime().toString(Qt::ISODate);
  if (!value.canConvert<QString>()) return QStringLiteral("<%1>").arg(QLatin1String(value.typeName()));
  return shortened(value.toString());
}

QJsonValue jsonOf(const QVariant& value, int depth) {
  if (depth > kDeepestPrinted) return QStringLiteral("…");
  switch (value.metaType().id()) {
    case QMetaType::Bool:
      return value.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
      return value.toLongLong();
    case QMetaType::Double:
      return value.toDouble();
    case QMetaType::QVariantMap: {
      QJsonObject object;
      const Dictionary dictionary = value.toMap();
      for (auto entry = dictionary.begin(); entry != dictionary.end(); ++entry) {
        object.insert(shortened(entry.key()), jsonOf(entry.value(), depth + 1));
      }
      return object;
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
      QJsonArray array;
      const QVariantList list = value.toList();
      for (const QVariant& item : list) array.append(jsonOf(item, depth + 1));
      return array;
    }
    default:
      return leafText(value);
  }
}

// One argument as it is printed: secrets masked, long texts shortened.
QString argumentText(const QVariant& value) {
  const QVariant masked = kzMaskedValue(value);
  const QJsonValue json = jsonOf(masked, 0);
  if (!json.isObject() && !json.isArray()) return leafText(masked);
  const QJsonDocument document =
      json.isObject() ? QJsonDocument(json.toObject()) : QJsonDocument(json.toArray());
  return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
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
    result += argumentText(argument.value());
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

const char* kzTraceLevelName(KZTraceLevel level) {
  static constexpr const char* names[] = {"info", "warning", "error"};
  return names[static_cast<int>(level)];
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

bool isEnabled() {
  return isTraceEnabled.load(std::memory_order_relaxed);
}

QString Method::name() const {
  const QString name = kzMethodName(m_functionInfo);
  if (!m_object) return name;
  return QLatin1String(m_object->metaObject()->className()) + QLatin1String("::") +
         name.mid(name.lastIndexOf(u':') + 1);
}

void write(KZTraceLevel level, const char* module, const Method& method, const char* format,
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
           .method = method.name(),
           .text = formatted(format, arguments)});
}

}  // namespace kztrace

QString kzMethodName(const char* functionInfo) {
  QByteArray info(functionInfo);
  // As gcc and clang write it.
  info.replace("{anonymous}::", "").replace("(anonymous namespace)::", "");
  // The name ends at the parameters, the first parenthesis that is in no template argument or decltype.
  qsizetype begin = 0;
  qsizetype end = 0;
  for (int depth = 0; end < info.size(); ++end) {
    const char sign = info[end];
    if (depth == 0 && QByteArrayView(info).sliced(end).startsWith("operator")) {
      const bool isCall = QByteArrayView(info).sliced(end).startsWith("operator()");
      const qsizetype parameters = info.indexOf('(', end + qstrlen(isCall ? "operator()" : "operator"));
      end = parameters < 0 ? info.size() : parameters;
      break;
    }
    const bool opens = sign == '<' || (sign == '(' && (depth > 0 || end == begin));
    if (sign == '(' && !opens) break;
    if (opens) ++depth;
    if (depth > 0 && (sign == '>' || sign == ')')) --depth;
    if (depth == 0 && (sign == ' ' || sign == '&' || sign == '*')) begin = end + 1;
  }
  return QString::fromUtf8(info.sliced(begin, end - begin));
}
