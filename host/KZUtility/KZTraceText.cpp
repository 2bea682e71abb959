#include "host/KZUtility/KZTraceText.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/KZSecretMask.h"

namespace {

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

}  // namespace

QString kzTraceText(const QVariant& value) {
  const QVariant masked = kzMaskedValue(value);
  const QJsonValue json = jsonOf(masked, 0);
  if (json.isObject())
    return QString::fromUtf8(QJsonDocument(json.toObject()).toJson(QJsonDocument::Compact));
  if (json.isArray()) return QString::fromUtf8(QJsonDocument(json.toArray()).toJson(QJsonDocument::Compact));
  return leafText(masked);
}
