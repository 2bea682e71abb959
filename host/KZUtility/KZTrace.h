#pragma once

#include <QString>
#include <QVariant>
#include <concepts>
#include <functional>
#include <string_view>
#include <type_traits>
#include <vector>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZHostExport.h"

// The trace. A format may have %@ (a text, dictionary, object or value), %d (a number or flag) and %s (a C
// string); they are checked against their arguments when they are compiled. Values under keys that hold
// secrets print as "***". Any thread.

enum class KZTraceLevel { Info, Warning, Error };

struct KZTraceRecord {
  KZTraceLevel level;
  QString module;
  QString method;  // "Class::method"
  QString text;
};

using KZTraceSink = std::function<void(const KZTraceRecord&)>;

// Sets where records go; an empty function restores the default, one line for each record on standard error.
KZ_HOST_EXPORT void setKZTraceSink(KZTraceSink sink);

// Drops all records unformatted until a sink is set again.
KZ_HOST_EXPORT void muteKZTrace();

// "info", "warning" or "error".
KZ_HOST_EXPORT const char* kzTraceLevelName(KZTraceLevel level);

// The dictionary as the trace would show it: secrets replaced by "***", also in lists, in inner dictionaries,
// in texts that hold JSON and in the parameters of addresses. For hosts that show contents.
KZ_HOST_EXPORT Dictionary kzMaskSecrets(const Dictionary& dictionary);

// Returns the replacement of a secret: of its value, or of a whole text that names a secret and is not JSON.
using KZSecretReplacement = std::function<QVariant(const QVariant& secret)>;

// The same with the given replacements. For hosts that store contents.
KZ_HOST_EXPORT Dictionary kzReplaceSecrets(const Dictionary& dictionary,
                                           const KZSecretReplacement& replacement);

namespace kztrace {

class KZ_HOST_EXPORT Argument {
 public:
  Argument(const QString& text) : m_value(text) {}
  Argument(const Dictionary& dictionary) : m_value(dictionary) {}
  Argument(const Content& content) : m_value(content ? QVariant(*content) : QVariant()) {}
  Argument(const QVariant& value) : m_value(value) {}
  Argument(const char* text) : m_value(QString::fromUtf8(text)) {}
  Argument(bool flag) : m_value(flag ? 1 : 0) {}
  Argument(std::integral auto number) : m_value(static_cast<qlonglong>(number)) {}
  template <typename T>
  requires(!std::same_as<std::remove_cv_t<T>, char>) Argument(const T* object)
      : m_value(objectText(object)) {}

  const QVariant& value() const { return m_value; }

 private:
  static QVariant objectText(const void* object);

  QVariant m_value;
};

// The method that is traced: Q_FUNC_INFO alone, or with the object whose class the record names, for a method
// that several classes inherit.
class KZ_HOST_EXPORT Method {
 public:
  Method(const char* functionInfo) : m_functionInfo(functionInfo) {}
  Method(const QObject* object, const char* functionInfo) : m_object(object), m_functionInfo(functionInfo) {}

  QString name() const;

 private:
  const QObject* m_object = nullptr;
  const char* m_functionInfo;
};

template <typename T>
inline constexpr bool isNumber = std::integral<std::remove_cvref_t<T>>;
template <typename T>
inline constexpr bool isCText = std::is_convertible_v<T, const char*>;

template <typename... Arguments>
class Format {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): a literal is meant to become a checked format.
  consteval Format(const char* text) : m_text(text) {
    constexpr bool numbers[] = {isNumber<Arguments>..., false};
    constexpr bool cTexts[] = {isCText<Arguments>..., false};
    std::size_t next = 0;
    for (const char* at = text; *at != '\0'; ++at) {
      if (*at != '%') continue;
      const char kind = *++at;
      if (next >= sizeof...(Arguments)) throw "more directives than arguments";
      if (kind == 'd' ? !numbers[next] : kind == 's' ? !cTexts[next] : kind != '@') throw "wrong directive";
      ++next;
    }
    if (next != sizeof...(Arguments)) throw "more arguments than directives";
  }

  const char* text() const { return m_text; }

 private:
  const char* m_text;
};

template <typename... Arguments>
using FormatFor = Format<std::type_identity_t<Arguments>...>;

KZ_HOST_EXPORT bool isEnabled();

KZ_HOST_EXPORT void write(KZTraceLevel level, const char* module, const Method& method, const char* format,
                          const std::vector<Argument>& arguments);

}  // namespace kztrace

// "Class::method" of a Q_FUNC_INFO text; for a lambda, of the method that contains it.
KZ_HOST_EXPORT QString kzMethodName(const char* functionInfo);

// The method form: module, Q_FUNC_INFO or {this, Q_FUNC_INFO}, format, arguments.
template <typename... Arguments>
void MVRNSInfoFuncTraceIMPL(const char* module, const kztrace::Method& method,
                            kztrace::FormatFor<Arguments...> format, const Arguments&... arguments) {
  if (!kztrace::isEnabled()) return;
  kztrace::write(KZTraceLevel::Info, module, method, format.text(), {kztrace::Argument(arguments)...});
}

template <typename... Arguments>
void MVRNSWarningFuncTraceIMPL(const char* module, const kztrace::Method& method,
                               kztrace::FormatFor<Arguments...> format, const Arguments&... arguments) {
  if (!kztrace::isEnabled()) return;
  kztrace::write(KZTraceLevel::Warning, module, method, format.text(), {kztrace::Argument(arguments)...});
}

template <typename... Arguments>
void MVRNSErrorFuncTraceIMPL(const char* module, const kztrace::Method& method,
                             kztrace::FormatFor<Arguments...> format, const Arguments&... arguments) {
  if (!kztrace::isEnabled()) return;
  kztrace::write(KZTraceLevel::Error, module, method, format.text(), {kztrace::Argument(arguments)...});
}

// The plain form, for a format that names its method itself: "%s" with Q_FUNC_INFO first.
template <typename... Arguments>
void MVRNSInfoTraceIMPL(const char* module, kztrace::FormatFor<const char*, Arguments...> format,
                        const char* method, const Arguments&... arguments) {
  if (!kztrace::isEnabled()) return;
  kztrace::write(KZTraceLevel::Info, module, method, format.text(),
                 {kztrace::Argument(kzMethodName(method)), kztrace::Argument(arguments)...});
}

template <typename... Arguments>
void MVRNSWarningTraceIMPL(const char* module, kztrace::FormatFor<const char*, Arguments...> format,
                           const char* method, const Arguments&... arguments) {
  if (!kztrace::isEnabled()) return;
  kztrace::write(KZTraceLevel::Warning, module, method, format.text(),
                 {kztrace::Argument(kzMethodName(method)), kztrace::Argument(arguments)...});
}
