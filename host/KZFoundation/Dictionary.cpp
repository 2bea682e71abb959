#include "host/KZFoundation/Dictionary.h"

namespace {

template <typename T>
const T* valueOfType(const Dictionary& dictionary, const QString& key) {
  const auto found = dictionary.constFind(key);
  if (found == dictionary.constEnd() || found->metaType() != QMetaType::fromType<T>()) return nullptr;
  return static_cast<const T*>(found->constData());
}

bool isNumber(const QVariant& value) {
  switch (value.metaType().id()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool isMissing(const QVariant& value) {
  if (!value.isValid() || value.metaType() == QMetaType::fromType<std::nullptr_t>()) return true;
  return value.metaType() == QMetaType::fromType<QString>() && value.toString().isNull();
}

Dictionary dictionaryWithPairs(std::initializer_list<std::pair<QString, QVariant>> pairs) {
  Dictionary dictionary;
  for (const auto& [key, value] : pairs) {
    if (isMissing(value)) break;
    dictionary.insert(key, value);
  }
  return dictionary;
}

QString textValue(const Dictionary& dictionary, const QString& key) {
  const QString* text = valueOfType<QString>(dictionary, key);
  return text ? *text : QString();
}

Dictionary dictionaryValue(const Dictionary& dictionary, const QString& key) {
  const Dictionary* inner = valueOfType<Dictionary>(dictionary, key);
  return inner ? *inner : Dictionary();
}

std::optional<bool> asFlag(const QVariant& value) {
  if (value.metaType() == QMetaType::fromType<bool>()) return value.toBool();
  return isNumber(value) ? std::optional(value.toDouble() != 0) : std::nullopt;
}

std::optional<bool> flagValue(const Dictionary& dictionary, const QString& key) {
  return asFlag(dictionary.value(key));
}

QString countValue(const Dictionary& dictionary, const QString& key) {
  const QVariant value = dictionary.value(key);
  return isNumber(value) ? value.toString() : textValue(dictionary, key);
}

bool isSet(const Dictionary& dictionary, const QString& key) {
  return flagValue(dictionary, key).value_or(false);
}

bool isEqualText(const QString& left, const QString& right) {
  return !left.isNull() && !right.isNull() && left == right;
}
