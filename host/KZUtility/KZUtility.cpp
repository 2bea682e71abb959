#include "host/KZUtility/KZUtility.h"

#include <QTextBoundaryFinder>
#include <algorithm>

#include "host/KZUtility/BoundedJson.h"

namespace {

constexpr qsizetype kLongestValue = 128;

bool isBlankOrControl(QChar sign) {
  return sign.isSpace() || sign.category() == QChar::Other_Control;
}

bool isDomain(QStringView domain) {
  const auto labels = domain.split(u'.');
  return labels.size() > 1 && std::ranges::none_of(labels, [](QStringView label) { return label.isEmpty(); });
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
  return boundedJsonValue(text).value_or(QVariant());
}

QString KZUtility::getLengthLimitationStringValue(const QString& text) {
  if (text.size() <= kLongestValue) return text;
  // What stands farther behind cannot change where the last fitting character ends.
  const QString start = text.left(2 * kLongestValue);
  QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, start);
  finder.setPosition(kLongestValue);
  qsizetype end = finder.isAtBoundary() ? kLongestValue : finder.toPreviousBoundary();
  // One endless character: cut between its code points.
  if (end <= 0) end = text.at(kLongestValue - 1).isHighSurrogate() ? kLongestValue - 1 : kLongestValue;
  return text.left(end);
}

bool KZUtility::validateEmail(const QString& text) {
  if (std::ranges::any_of(text, isBlankOrControl)) return false;
  const qsizetype at = text.indexOf(u'@');
  return at > 0 && text.lastIndexOf(u'@') == at && isDomain(QStringView(text).mid(at + 1));
}
