#include "adal/ADTokenCacheItem.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>
#include <QTimeZone>
#include <algorithm>
#include <atomic>

namespace {

constexpr quint32 tokenFormatMark = 0x4b5a5443;
constexpr quint16 tokenFormatVersion = 1;
constexpr qsizetype tokenCheckSumSize = 32;

QByteArray tokenCheckSum(QByteArrayView data) {
  return QCryptographicHash::hash(data, QCryptographicHash::Sha256);
}

void prepareTokenStream(QDataStream& stream) {
  stream.setVersion(QDataStream::Qt_6_0);
}

QString readTokenText(QDataStream& stream) {
  QByteArray utf8;
  stream >> utf8;
  return QString::fromUtf8(utf8);
}

void writeTokenItem(QDataStream& stream, const ADTokenCacheItem& item) {
  for (const QString* text : {&item.userInformation.userId, &item.authority, &item.resource, &item.clientId,
                              &item.accessToken, &item.refreshToken}) {
    stream << text->toUtf8();
  }
  stream << item.multiResource << item.expiresOn.isValid()
         << (item.expiresOn.isValid() ? item.expiresOn.toMSecsSinceEpoch() : qint64{0});
}

ADTokenCacheItem readTokenItem(QDataStream& stream) {
  ADTokenCacheItem item;
  for (QString* text : {&item.userInformation.userId, &item.authority, &item.resource, &item.clientId,
                        &item.accessToken, &item.refreshToken}) {
    *text = readTokenText(stream);
  }
  bool expires = false;
  qint64 expiresOn = 0;
  stream >> item.multiResource >> expires >> expiresOn;
  if (expires) item.expiresOn = QDateTime::fromMSecsSinceEpoch(expiresOn, QTimeZone::utc());
  return item;
}

constinit std::atomic<ADClock> tokenClock = nullptr;

}  // namespace

void setADClock(ADClock clock) {
  tokenClock = clock;
}

QDateTime adNow() {
  const ADClock clock = tokenClock;
  return clock ? clock() : QDateTime::currentDateTimeUtc();
}

bool ADTokenCacheItem::isExpired() const {
  return !expiresOn.isValid() || expiresOn <= adNow();
}

bool ADTokenCacheItem::isSameEntry(const ADTokenCacheItem& other) const {
  // A refresh token for several resources is one entry, whichever resource it was first requested for.
  return multiResource == other.multiResource && (multiResource || resource == other.resource) &&
         isOfSameGrant(other);
}

bool ADTokenCacheItem::isOfSameUser(const ADTokenCacheItem& other) const {
  return userInformation.userId.compare(other.userInformation.userId, Qt::CaseInsensitive) == 0;
}

bool ADTokenCacheItem::isOfSameGrant(const ADTokenCacheItem& other) const {
  return authority == other.authority && clientId == other.clientId && isOfSameUser(other);
}

void addOrUpdate(QList<ADTokenCacheItem>& items, const ADTokenCacheItem& item) {
  const auto known = std::find_if(items.begin(), items.end(),
                                  [&item](const ADTokenCacheItem& other) { return item.isSameEntry(other); });
  if (known != items.end()) {
    *known = item;
  } else {
    items.append(item);
  }
}

QByteArray serializedTokens(const QList<ADTokenCacheItem>& items) {
  QByteArray data;
  QDataStream stream(&data, QIODevice::WriteOnly);
  prepareTokenStream(stream);
  stream << tokenFormatMark << tokenFormatVersion << static_cast<quint32>(items.size());
  for (const ADTokenCacheItem& item : items) writeTokenItem(stream, item);
  return data.append(tokenCheckSum(data));
}

std::optional<QList<ADTokenCacheItem>> deserializedTokens(const QByteArray& data) {
  if (data.size() <= tokenCheckSumSize) return {};
  const QByteArray body = QByteArray::fromRawData(data.constData(), data.size() - tokenCheckSumSize);
  if (tokenCheckSum(body) != data.last(tokenCheckSumSize)) return {};

  QDataStream stream(body);
  prepareTokenStream(stream);
  quint32 mark = 0;
  quint16 version = 0;
  quint32 count = 0;
  stream >> mark >> version >> count;
  if (mark != tokenFormatMark || version != tokenFormatVersion) return {};

  QList<ADTokenCacheItem> items;
  for (quint32 index = 0; index < count && stream.status() == QDataStream::Ok; ++index) {
    items.append(readTokenItem(stream));
  }
  if (stream.status() != QDataStream::Ok || !stream.atEnd()) return {};
  return items;
}
