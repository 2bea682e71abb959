#include "companion/session/Step.h"

#include <algorithm>
#include <cmath>

#include "companion/format/ValueCodec.h"

QString Step::text(const char* key) {
  const QString value = typed(key, QJsonValue::String, "a text").toString();
  // An empty text is a value, a null one is none.
  return value.isNull() ? QStringLiteral("") : value;
}

QString Step::optionalText(const char* key) {
  return raw(key).isNull() || !has(key) ? QString() : text(key);
}

QString Step::choice(const char* key, std::initializer_list<const char*> choices) {
  const QString value = has(key) ? text(key) : QString::fromLatin1(*choices.begin());
  if (!std::ranges::any_of(choices, [&](const char* known) { return value == QLatin1String(known); }))
    fail(QStringLiteral("\"%1\" cannot be \"%2\"").arg(QLatin1String(key), value));
  return value;
}

bool Step::flag(const char* key) {
  return typed(key, QJsonValue::Bool, "true or false").toBool();
}

bool Step::optionalFlag(const char* key) {
  return has(key) && flag(key);
}

double Step::number(const char* key) {
  return typed(key, QJsonValue::Double, "a number").toDouble();
}

qint64 Step::integer(const char* key, qint64 least, qint64 greatest) {
  const double value = number(key);
  const bool isInRange = value >= static_cast<double>(least) && value <= static_cast<double>(greatest);
  if (isInRange && std::trunc(value) == value) return raw(key).toInteger(least);
  fail(QStringLiteral("\"%1\" is not a whole number from %2 to %3")
           .arg(QLatin1String(key))
           .arg(least)
           .arg(greatest));
  return least;
}

QJsonArray Step::list(const char* key) {
  return typed(key, QJsonValue::Array, "a list").toArray();
}

QJsonObject Step::object(const char* key) {
  return typed(key, QJsonValue::Object, "an object").toObject();
}

Content Step::content(const char* key) {
  if (!has(key) || raw(key).isNull()) return {};
  const valuecodec::Decoded decoded = valuecodec::decode(object(key));
  if (!decoded.error.isEmpty()) fail(decoded.error);
  if (decoded.value.typeId() != QMetaType::QVariantMap)
    fail(QStringLiteral("\"%1\" is not a dictionary").arg(QLatin1String(key)));
  return decoded.value.toMap();
}

void Step::fail(const QString& reason) {
  if (isGood()) m_failure = reason;
}

QJsonValue Step::typed(const char* key, QJsonValue::Type type, const char* typeName) {
  const QJsonValue value = raw(key);
  if (value.type() == type) return value;
  fail(QStringLiteral("\"%1\" is not %2").arg(QLatin1String(key), QLatin1String(typeName)));
  return {};
}
