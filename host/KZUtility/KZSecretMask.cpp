#include "host/KZUtility/KZSecretMask.h"

#include <QJsonDocument>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/KZUtility.h"

namespace {

using Replacement = std::function<QVariant(const QVariant&)>;

constexpr int kDeepestMasked = 64;
constexpr QStringView kMask = u"***";
constexpr QStringView kSecretKeys[] = {u"QRT_CredentialContent", u"code", u"code_verifier", u"client_secret"};
constexpr QStringView kSecretWords[] = {u"password", u"token"};
// Secret only as parameters of an address: elsewhere these are common words.
constexpr QStringView kSignInParameters[] = {u"state", u"nonce", u"code_challenge"};

bool isSecretKey(QStringView key) {
  return std::ranges::find(kSecretKeys, key) != std::end(kSecretKeys) ||
         std::ranges::any_of(kSecretWords,
                             [&](QStringView word) { return key.contains(word, Qt::CaseInsensitive); });
}

bool isSecretParameter(QStringView key) {
  return isSecretKey(key) || std::ranges::find(kSignInParameters, key) != std::end(kSignInParameters);
}

bool isAddress(const QString& text) {
  return text.contains(QLatin1String("://")) && std::ranges::none_of(text, [](QChar sign) {
           return sign.isSpace() || sign == u'"' || sign == u'\'';
         });
}

bool isKeyCharacter(QChar sign) {
  return sign.isLetterOrNumber() || sign == u'_';
}
bool isBetweenKeyAndValue(QChar sign) {
  return sign.isSpace() || sign == u'"' || sign == u'\'' || sign == u'\\';
}

// Whether the text has a secret's key before a colon or an equals sign.
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

QString decoded(const QString& part) {
  return QUrl::fromPercentEncoding(part.toUtf8());
}

// Replaces the values of secret parameters and the password before the host's name.
QVariant replacedInAddress(const QVariant& value, const Replacement& replacement) {
  // The value is matched by a lookahead, so that parameters inside a value that is no secret are found too.
  static const QRegularExpression part(
      QStringLiteral("(?|[?&#;]([^?&#;=]+)=(?=([^&#]*))|(://)[^/?#@:]*:([^/?#@]*)@)"));
  const QString address = value.toString();
  QString result;
  QString rest;
  qsizetype end = 0;
  for (auto parts = part.globalMatch(address); parts.hasNext();) {
    const QRegularExpressionMatch match = parts.next();
    const QString key = match.captured(1);
    const bool isSecret = key == QLatin1String("://") || isSecretParameter(decoded(key));
    if (!isSecret || match.capturedStart() < end) continue;
    result += address.mid(end, match.capturedStart(2) - end);
    result += replacement(decoded(match.captured(2))).toString();
    rest += address.mid(end, match.capturedStart() - end);
    end = match.capturedEnd(2);
  }
  if (namesSecret(rest + address.mid(end))) return replacement(value);
  return end == 0 ? value : result + address.mid(end);
}

QVariant replacedInText(const QVariant& value, int depth, const Replacement& replacement) {
  const QString text = value.toString();
  if (isAddress(text)) return replacedInAddress(value, replacement);
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
