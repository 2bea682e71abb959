#include "companion/inspector/ValueDifference.h"

#include <QJsonArray>
#include <QJsonDocument>

#include "companion/format/ValueCodec.h"
#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/KZTrace.h"

namespace {

constexpr int kDeepestCompared = 32;

struct Entry {
  QString key;
  QString path;
  QVariant before;
  QVariant after;
};

QVariant maskedEntry(const QString& key, const QVariant& value) {
  return kzMaskSecrets({{key, value}}).value(key);
}

QString valueLine(QChar sign, const Entry& entry, const QVariant& value) {
  const QJsonArray holder{valuecodec::encode(maskedEntry(entry.key, value))};
  const QString json = QString::fromUtf8(QJsonDocument(holder).toJson(QJsonDocument::Compact));
  return QStringLiteral("%1 %2: %3").arg(sign).arg(entry.path, json.mid(1, json.size() - 2));
}

// Under a secret's key nothing is looked into: the mask stands for all of it.
bool areBoth(QMetaType::Type type, const Entry& entry) {
  return entry.before.typeId() == type && entry.after.typeId() == type &&
         maskedEntry(entry.key, entry.before).typeId() == type &&
         maskedEntry(entry.key, entry.after).typeId() == type;
}

QList<Entry> dictionaryEntries(const Entry& entry) {
  const Dictionary before = entry.before.toMap();
  const Dictionary after = entry.after.toMap();
  Dictionary all = before;
  all.insert(after);
  QList<Entry> entries;
  for (const QString& key : all.keys()) {
    entries.append({key, entry.path + u'.' + key, before.value(key), after.value(key)});
  }
  return entries;
}

QList<Entry> listEntries(const Entry& entry) {
  const QVariantList before = entry.before.toList();
  const QVariantList after = entry.after.toList();
  QList<Entry> entries;
  for (qsizetype at = 0; at < qMax(before.size(), after.size()); ++at) {
    const QString place = QStringLiteral("[%1]").arg(at);
    entries.append({place, entry.path + place, before.value(at), after.value(at)});
  }
  return entries;
}

QStringList linesOf(const Entry& entry, int depth) {
  if (entry.before == entry.after) return {};
  QList<Entry> entries;
  if (depth < kDeepestCompared && areBoth(QMetaType::QVariantMap, entry)) entries = dictionaryEntries(entry);
  if (depth < kDeepestCompared && areBoth(QMetaType::QVariantList, entry)) entries = listEntries(entry);
  QStringList lines;
  for (const Entry& inner : entries) lines += linesOf(inner, depth + 1);
  if (!entries.isEmpty()) return lines;
  if (entry.before.isValid()) lines.append(valueLine(u'-', entry, entry.before));
  if (entry.after.isValid()) lines.append(valueLine(u'+', entry, entry.after));
  return lines;
}

}  // namespace

QStringList valueDifference(const QString& key, const QVariant& before, const QVariant& after) {
  return linesOf({key, key, before, after}, 0);
}
