#include "companion/format/ValueCodec.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>

#include "host/KZFoundation/KZConstantRegistry.h"

namespace valuecodec {
namespace {

const QString kDataKey = QStringLiteral("$data");

Decoded decodeText(const QString& text) {
  if (!text.startsWith(u'@')) return {text, {}};
  if (text.startsWith(QLatin1String("@@"))) return {text.mid(1), {}};
  const QString constant = constantNamed(text.mid(1));
  if (constant.isNull()) return {{}, QStringLiteral("there is no host constant %1").arg(text.mid(1))};
  return {constant, {}};
}

Decoded decodeData(const QJsonValue& base64) {
  if (!base64.isString()) return {{}, QStringLiteral("$data is not a text")};
  const auto bytes =
      QByteArray::fromBase64Encoding(base64.toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
  if (!bytes) return {{}, QStringLiteral("$data is not base64")};
  return {*bytes, {}};
}

Decoded decodeObject(const QJsonObject& object) {
  if (object.size() == 1 && object.contains(kDataKey)) return decodeData(object.value(kDataKey));
  Dictionary dictionary;
  for (auto entry = object.begin(); entry != object.end(); ++entry) {
    const Decoded decoded = decode(entry.value());
    if (!decoded.error.isEmpty()) return decoded;
    if (decoded.value.isValid()) dictionary.insert(entry.key(), decoded.value);
  }
  return {dictionary, {}};
}

Decoded decodeArray(const QJsonArray& array) {
  QVariantList list;
  for (const QJsonValue& element : array) {
    const Decoded decoded = decode(element);
    if (!decoded.error.isEmpty()) return decoded;
    list.append(decoded.value);
  }
  return {list, {}};
}

QJsonValue encodeText(const QString& text, Form form) {
  if (form == Form::Printed) return text;
  const QString constant = constantNameOf(text);
  if (!constant.isNull()) return QString(u'@' + constant);
  return text.startsWith(u'@') ? QString(u'@' + text) : text;
}

}  // namespace

Decoded decode(const QJsonValue& value) {
  if (value.isNull() || value.isUndefined()) return {};
  if (value.isString()) return decodeText(value.toString());
  if (value.isObject()) return decodeObject(value.toObject());
  if (value.isArray()) return decodeArray(value.toArray());
  return {value.toVariant(), {}};
}

QJsonValue encode(const QVariant& value, Form form) {
  if (isMissing(value)) return QJsonValue::Null;
  switch (value.typeId()) {
    case QMetaType::QString:
      return encodeText(value.toString(), form);
    case QMetaType::QVariantMap: {
      QJsonObject object;
      for (const auto& [key, member] : value.toMap().asKeyValueRange())
        object.insert(key, encode(member, form));
      return object;
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
      QJsonArray array;
      for (const QVariant& element : value.toList()) array.append(encode(element, form));
      return array;
    }
    case QMetaType::QByteArray:
      return QJsonObject{{kDataKey, QString::fromLatin1(value.toByteArray().toBase64())}};
    case QMetaType::QDateTime:
      return value.toDateTime().toUTC().toString(Qt::ISODateWithMs);
    default:
      return QJsonValue::fromVariant(value);
  }
}

QJsonValue encodeContent(const Content& content, Form form) {
  return content ? encode(*content, form) : QJsonValue::Null;
}

}  // namespace valuecodec
