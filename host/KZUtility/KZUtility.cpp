#include "host/KZUtility/KZUtility.h"

#include <QDesktopServices>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTextBoundaryFinder>
#include <algorithm>

#include "host/KZUtility/KZApplicationHelper.h"
#include "host/KZUtility/KZWorkspace.h"

namespace {

constexpr qsizetype kLongestValue = 128;

bool isBlankOrControl(QChar sign) {
  return sign.isSpace() || sign.category() == QChar::Other_Control;
}

bool isDomain(QStringView domain) {
  const auto labels = domain.split(u'.');
  return labels.size() > 1 && std::ranges::none_of(labels, [](QStringView label) { return label.isEmpty(); });
}

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

KZUtility& KZUtility::sharedInstance() {
  static KZUtility utility;
  return utility;
}

QVariant KZUtility::getKZMemCacheData(const QString& key) const {
  return m_memCache.value(key);
}

void KZUtility::setKZMemCacheData(const QString& key, const QVariant& value) {
  if (isMissing(value)) {
    m_memCache.remove(key);
    return;
  }
  m_memCache.insert(key, value);
}

QVariant KZUtility::JSONValueFromString(const QString& text) {
  if (text.size() > kLargestJson) return {};
  const QByteArray json = text.toUtf8();
  if (json.size() > kLargestJson || !isShallowEnough(json)) return {};
  // QJsonDocument accepts no scalars at the top, so the text becomes the only item of a list.
  QJsonParseError error;
  const QJsonArray array = QJsonDocument::fromJson('[' + json + ']', &error).array();
  if (error.error != QJsonParseError::NoError || array.size() != 1) return {};
  return variantOf(array.first());
}

QString KZUtility::getLengthLimitationStringValue(const QString& text) {
  if (text.size() <= kLongestValue) return text;
  // Later text does not affect where the last fitting character ends.
  const QString start = text.left(2 * kLongestValue);
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, start);
  finder.setPosition(kLongestValue);
  qsizetype end = finder.isAtBoundary() ? kLongestValue : finder.toPreviousBoundary();
  // A single character that is too long is cut between its code points.
  if (end <= 0) end = text.at(kLongestValue - 1).isHighSurrogate() ? kLongestValue - 1 : kLongestValue;
  return text.left(end);
}

bool KZUtility::validateEmail(const QString& text) {
  if (std::ranges::any_of(text, isBlankOrControl)) return false;
  const qsizetype at = text.indexOf(u'@');
  return at > 0 && text.lastIndexOf(u'@') == at && isDomain(QStringView(text).mid(at + 1));
}

KZApplicationHelper& KZApplicationHelper::sharedInstance() {
  static KZApplicationHelper helper;
  return helper;
}

KZWorkspace& KZWorkspace::sharedWorkspace() {
  // Never destroyed: the opener may hold objects that a host destroys by itself.
  static KZWorkspace* const workspace = new KZWorkspace;
  return *workspace;
}

bool KZWorkspace::openURL(const QUrl& url) {
  if (!url.isValid()) return false;
  // The desktop would take an address without a scheme for the path of a file.
  return m_opener ? m_opener(url) : !url.isRelative() && QDesktopServices::openUrl(url);
}
