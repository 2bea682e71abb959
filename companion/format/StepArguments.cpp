#include "companion/format/StepArguments.h"

#include <QJsonArray>
#include <algorithm>
#include <cmath>

#include "companion/format/ValueCodec.h"

QString StepArguments::text(const char* key) {
  return typed(key, QJsonValue::String, "a text").toString();
}

QString StepArguments::textOr(const char* key, const QString& fallback) {
  return has(key) ? text(key) : fallback;
}

QString StepArguments::optionalText(const char* key) {
  if (!has(key) || raw(key).isNull()) return {};
  const QString value = text(key);
  // An empty text is a value, a null one is none.
  return value.isNull() ? QStringLiteral("") : value;
}

QString StepArguments::choice(const char* key, std::initializer_list<const char*> choices) {
  const QString value = text(key);
  const bool isKnown =
      std::ranges::any_of(choices, [&](const char* known) { return value == QLatin1String(known); });
  if (!isKnown) fail(QStringLiteral("\"%1\" cannot be \"%2\"").arg(QLatin1String(key), value));
  return value;
}

bool StepArguments::flag(const char* key) {
  return typed(key, QJsonValue::Bool, "true or false").toBool();
}

bool StepArguments::flagOr(const char* key, bool fallback) {
  return has(key) ? flag(key) : fallback;
}

qint64 StepArguments::integer(const char* key, qint64 least, qint64 greatest) {
  const double value = number(key);
  if (!isGood()) return least;
  if (value < static_cast<double>(least) || value > static_cast<double>(greatest) ||
      std::trunc(value) != value) {
    fail(QStringLiteral("\"%1\" is not a whole number from %2 to %3")
             .arg(QLatin1String(key))
             .arg(least)
             .arg(greatest));
    return least;
  }
  return raw(key).toInteger(least);
}

double StepArguments::number(const char* key) {
  return typed(key, QJsonValue::Double, "a number").toDouble();
}

QStringList StepArguments::textsOr(const char* key, const QStringList& fallback) {
  if (!has(key)) return fallback;
  QStringList texts;
  const QJsonArray array = typed(key, QJsonValue::Array, "a list of texts").toArray();
  for (const QJsonValue& element : array) {
    if (!element.isString()) fail(QStringLiteral("\"%1\" is not a list of texts").arg(QLatin1String(key)));
    texts.append(element.toString());
  }
  return texts;
}

QJsonObject StepArguments::object(const char* key) {
  return typed(key, QJsonValue::Object, "an object").toObject();
}

Content StepArguments::content(const char* key) {
  if (!has(key) || raw(key).isNull()) return {};
  const auto decoded = valuecodec::decode(object(key));
  if (!decoded.error.isEmpty()) fail(decoded.error);
  if (decoded.value.typeId() != QMetaType::QVariantMap)
    fail(QStringLiteral("\"%1\" is not a dictionary").arg(QLatin1String(key)));
  return decoded.value.toMap();
}

void StepArguments::fail(const QString& reason) {
  if (isGood()) m_error = reason;
}

QJsonValue StepArguments::typed(const char* key, QJsonValue::Type type, const char* typeName) {
  const QJsonValue value = raw(key);
  if (value.type() == type) return value;
  fail(QStringLiteral("\"%1\" is not %2").arg(QLatin1String(key), QLatin1String(typeName)));
  return {};
}
