#include "host/KZFoundation/Dictionary.h"

namespace {

template <typename T>
const T* valueOfType(const Dictionary& dictionary, const QString& key) {
  const auto found = dictionary.constFind(key);
  if (found == dictionary.constEnd() || found->metaType() != QMetaType::fromType<T>()) return nullptr;
  return static_cast<const T*>(found->constData());
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

std::optional<bool> flagValue(const Dictionary& dictionary, const QString& key) {
  const bool* flag = valueOfType<bool>(dictionary, key);
  return flag ? std::optional(*flag) : std::nullopt;
}

bool isSet(const Dictionary& dictionary, const QString& key) {
  return flagValue(dictionary, key).value_or(false);
}

bool isEqualText(const QString& left, const QString& right) {
  return !left.isNull() && !right.isNull() && left == right;
}
