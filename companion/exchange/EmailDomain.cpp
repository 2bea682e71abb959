#include "companion/exchange/EmailDomain.h"

#include <QRegularExpression>
#include <QUrl>

namespace {

constexpr qsizetype kLongestEmail = 320;

}  // namespace

QString emailDomain(const QString& email) {
  const qsizetype at = email.lastIndexOf(QLatin1Char('@'));
  if (at <= 0 || email.size() > kLongestEmail) return {};
  const QString domain = QString::fromLatin1(QUrl::toAce(email.mid(at + 1))).toLower();
  static const QRegularExpression hostName(
      QStringLiteral("\\A[a-z0-9]([a-z0-9-]*[a-z0-9])?(\\.[a-z0-9]([a-z0-9-]*[a-z0-9])?)*\\z"));
  return hostName.match(domain).hasMatch() ? domain : QString();
}
