#include "companion/network/WebAddress.h"

#include <QHostAddress>
#include <QRegularExpression>

namespace {

constexpr qsizetype kLongestEmail = 320;

bool isLoopback(const QUrl& address) {
  const QString host = address.host();
  return host == QLatin1String("localhost") || QHostAddress(host).isLoopback();
}

}  // namespace

bool isSafeAddress(const QUrl& address) {
  if (!address.isValid() || address.host().isEmpty() || !address.userInfo().isEmpty()) return false;
  return address.scheme() == QLatin1String("https") ||
         (address.scheme() == QLatin1String("http") && isLoopback(address));
}

bool isSafeStep(const QUrl& from, const QUrl& to) {
  return isSafeAddress(to) && (isLoopback(from) || !isLoopback(to));
}

bool isOwnPage(const QUrl& page, const QString& host) {
  return isSafeAddress(page) && (isLoopback(page) || isWithinDomain(page.host(), host));
}

QUrl siteAddress(const QString& site) {
  QUrl address(QStringLiteral("https://%1/").arg(site), QUrl::StrictMode);
  const bool isSite = address.path() == QLatin1String("/") && !address.hasQuery() && !address.hasFragment();
  if (!isSite || !isSafeAddress(address)) return {};
  if (isLoopback(address)) address.setScheme(QStringLiteral("http"));
  return address;
}

bool isWithinDomain(const QString& host, const QString& domain) {
  if (host.isEmpty() || domain.isEmpty()) return false;
  return host.compare(domain, Qt::CaseInsensitive) == 0 ||
         host.endsWith(QLatin1Char('.') + domain, Qt::CaseInsensitive);
}

QString emailDomain(const QString& email) {
  const qsizetype at = email.lastIndexOf(QLatin1Char('@'));
  if (at <= 0 || email.size() > kLongestEmail) return {};
  const QString domain = QString::fromLatin1(QUrl::toAce(email.mid(at + 1))).toLower();
  static const QRegularExpression hostName(
      QStringLiteral("\\A[a-z0-9]([a-z0-9-]*[a-z0-9])?(\\.[a-z0-9]([a-z0-9-]*[a-z0-9])?)*\\z"));
  return hostName.match(domain).hasMatch() ? domain : QString();
}
