#include "companion/inspector/ValueDifference.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "companion/format/ValueCodec.h"
#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/KZTrace.h"

namespace {

constexpr int kDeepestCompared = 32;

struct Place {
  QString key;
  QString path;
};

QVariant maskedAt(const Place& place, const QVariant& value) {
  return kzMaskSecrets({{place.key, value}}).value(place.key);
}

QString lineOf(QChar sign, const Place& place, const QVariant& value) {
  const QJsonArray holder{valuecodec::encode(maskedAt(place, value))};
  const QString json = QString::fromUtf8(QJsonDocument(holder).toJson(QJsonDocument::Compact));
  return QStringLiteral("%1 %2: %3").arg(sign).arg(place.path, json.mid(1, json.size() - 2));
}

void compare(const Place& place, const QVariant& before, const QVariant& after, int depth,
             QStringList* lines) {
  if (before == after) return;
  // Under a secret's key the mask stands for all of it.
  const auto areBoth = [&](QMetaType::Type type) {
    return depth < kDeepestCompared && before.typeId() == type && after.typeId() == type &&
           maskedAt(place, before).typeId() == type;
  };
  if (areBoth(QMetaType::QVariantMap)) {
    const Dictionary old = before.toMap();
    const Dictionary fresh = after.toMap();
    Dictionary all = old;
    all.insert(fresh);
    for (const QString& key : all.keys())
      compare({key, place.path + u'.' + key}, old.value(key), fresh.value(key), depth + 1, lines);
    return;
  }
  if (areBoth(QMetaType::QVariantList)) {
    const QVariantList old = before.toList();
    const QVariantList fresh = after.toList();
    for (qsizetype at = 0; at < qMax(old.size(), fresh.size()); ++at) {
      const QString index = QStringLiteral("[%1]").arg(at);
      compare({index, place.path + index}, old.value(at), fresh.value(at), depth + 1, lines);
    }
    return;
  }
  if (before.isValid()) lines->append(lineOf(u'-', place, before));
  if (after.isValid()) lines->append(lineOf(u'+', place, after));
}

}  // namespace

QStringList valueDifference(const QString& key, const QVariant& before, const QVariant& after) {
  QStringList lines;
  compare({key, key}, before, after, 0, &lines);
  return lines;
}
