#include "host/KZUtility/KZSecretMask.h"

#include <QJsonDocument>
#include <algorithm>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/KZUtility.h"

namespace {

using Replacement = std::function<QVariant(const QVariant&)>;

constexpr int kDeepestMasked = 64;
constexpr QStringView kMask = u"***";
constexpr QStringView kSecretKeys[] = {u"QRT_CredentialContent", u"code", u"code_verifier", u"client_secret"};
constexpr QStringView kSecretWords[] = {u"password", u"token"};

bool isSecretKey(QStringView key) {
  return std::ranges::find(kSecretKeys, key) != std::end(kSecretKeys) ||
         std::ranges::any_of(kSecretWords,
                             [&](QStringView word) { return key.contains(word, Qt::CaseInsensitive); });
}

bool isKeyCharacter(QChar sign) {
  return sign.isLetterOrNumber() || sign == u'_';
}
bool isBetweenKeyAndValue(QChar sign) {
  return sign.isSpace() || sign == u'"' || sign == u'\'' || sign == u'\\';
}

// Whether something that reads as a secret's key stands before a colon or an equals sign.
bool namesSecret(QStringView text) {
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] != u':' && text[at] != u'=') continue;
    qsizetype end = at;
    while (end > 0 && isBetweenKeyAndValue(text[end - 1])) --end;
    qsizetype begin = end;
    while (begin > 0 && isKeyCharacter(text[begin - 1])) --begin;
    if (isSecretKey(text.mid(begin, end - begin))) return true;
  }
  return false;
}

QVariant replaced(const QVariant& value, int depth, const Replacement& replacement);

QVariant replacedInText(const QVariant& value, int depth, const Replacement& replacement) {
  const QString text = value.toString();
  if (!namesSecret(text)) return value;
  const QVariant json = KZUtility::JSONValueFromString(text);
  const auto document = QJsonDocument::fromVariant(replaced(json, depth + 1, replacement));
  if (document.isNull()) return replacement(value);
  return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

Dictionary replacedInDictionary(const Dictionary& dictionary, int depth, const Replacement& replacement) {
  Dictionary result = dictionary;
  for (auto entry = dictionary.begin(); entry != dictionary.end(); ++entry) {
    const bool isFlag = entry->metaType() == QMetaType::fromType<bool>();
    if (isSecretKey(entry.key()) && !isFlag) {
      result.insert(entry.key(), replacement(*entry));
      continue;
    }
    const QVariant inner = replaced(*entry, depth + 1, replacement);
    if (inner != *entry) result.insert(entry.key(), inner);
  }
  return result;
}

QVariant replaced(const QVariant& value, int depth, const Replacement& replacement) {
  if (depth > kDeepestMasked) return kMask.toString();
  switch (value.metaType().id()) {
    case QMetaType::QString:
      return replacedInText(value, depth, replacement);
    case QMetaType::QVariantMap:
      return replacedInDictionary(value.toMap(), depth, replacement);
    case QMetaType::QVariantHash:
      return replacedInDictionary(Dictionary(value.toMap()), depth, replacement);
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
      QVariantList list = value.toList();
      for (QVariant& item : list) item = replaced(item, depth + 1, replacement);
      return list;
    }
    default:
      return value;
  }
}

}  // namespace

QVariant kzMaskedValue(const QVariant& value) {
  return kzReplacedValue(value, [](const QVariant&) { return QVariant(kMask.toString()); });
}

QVariant kzReplacedValue(const QVariant& value, const std::function<QVariant(const QVariant&)>& replacement) {
  return replaced(value, 0, replacement);
}
