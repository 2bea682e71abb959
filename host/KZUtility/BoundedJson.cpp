#include "host/KZUtility/BoundedJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "host/KZFoundation/Dictionary.h"

namespace {

constexpr qsizetype kLargestJson = 4 * 1024 * 1024;
constexpr int kDeepestJson = 64;

bool isShallowEnough(const QByteArray& json) {
  int depth = 0;
  bool isInText = false;
  for (qsizetype at = 0; at < json.size(); ++at) {
    const char sign = json[at];
    if (isInText) {
      if (sign == '\\') ++at;
      if (sign == '"') isInText = false;
      continue;
    }
    if (sign == '"') isInText = true;
    if (sign == '{' || sign == '[') ++depth;
    if (sign == '}' || sign == ']') --depth;
    if (depth > kDeepestJson) return false;
  }
  return true;
}

QVariant variantOf(const QJsonValue& json) {
  switch (json.type()) {
    case QJsonValue::Null:
    case QJsonValue::Undefined:
      return {};
    case QJsonValue::String: {
      const QString text = json.toString();
      return text.isNull() ? QStringLiteral("") : text;
    }
    case QJsonValue::Array: {
      QVariantList list;
      const QJsonArray array = json.toArray();
      for (const QJsonValue& item : array) list.append(variantOf(item));
      return list;
    }
    case QJsonValue::Object: {
      Dictionary dictionary;
      const QJsonObject object = json.toObject();
      for (auto entry = object.begin(); entry != object.end(); ++entry) {
        if (!entry.value().isNull()) dictionary.insert(entry.key(), variantOf(entry.value()));
      }
      return dictionary;
    }
    default:
      return json.toVariant();
  }
}

}  // namespace

std::optional<QVariant> boundedJsonValue(const QString& text) {
  if (text.size() > kLargestJson) return std::nullopt;
  const QByteArray json = text.toUtf8();
  if (json.size() > kLargestJson || !isShallowEnough(json)) return std::nullopt;
  // The reader takes no scalars at the top, so the text becomes the only item of a list.
  QJsonParseError error;
  const QJsonArray array = QJsonDocument::fromJson('[' + json + ']', &error).array();
  if (error.error != QJsonParseError::NoError || array.size() != 1) return std::nullopt;
  return variantOf(array.first());
}
