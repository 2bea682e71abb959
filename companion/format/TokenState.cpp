#include "companion/format/TokenState.h"

#include "adal/ADTokenCache.h"
#include "companion/format/ValueCodec.h"

namespace tokenstate {
namespace {

QJsonObject describeItem(const ADTokenCacheItem& item) {
  QJsonObject description = {{"userId", item.userInformation.userId},
                             {"authority", item.authority},
                             {"resource", item.resource},
                             {"clientId", item.clientId},
                             {"accessToken", item.accessToken},
                             {"refreshToken", item.refreshToken},
                             {"multiResource", item.multiResource}};
  const bool hasExpiry = item.expiresOn.isValid();
  description.insert("expiresOn", hasExpiry ? QJsonValue(item.expiresOn.toUTC().toString(Qt::ISODate))
                                            : QJsonValue(QJsonValue::Null));
  return description;
}

ADTokenCacheItem readItem(StepArguments& values) {
  ADTokenCacheItem item;
  item.userInformation.userId = values.optionalText("userId");
  item.authority = values.optionalText("authority");
  item.resource = values.optionalText("resource");
  item.clientId = values.optionalText("clientId");
  item.accessToken = values.optionalText("accessToken");
  item.refreshToken = values.optionalText("refreshToken");
  item.multiResource = values.flagOr("multiResource", false);
  if (values.has("expiresIn") && !values.raw("expiresIn").isNull()) {
    const auto milliseconds = static_cast<qint64>(values.number("expiresIn") * 1000);
    item.expiresOn = QDateTime::currentDateTimeUtc().addMSecs(milliseconds);
  }
  return item;
}

}  // namespace

QJsonValue tokens() {
  QJsonArray items;
  for (const ADTokenCacheItem& item : ADTokenCache::defaultCache().allItems().items)
    items.append(describeItem(item));
  return items;
}

QJsonArray settableTokens() {
  const QDateTime now = QDateTime::currentDateTimeUtc();
  QJsonArray items;
  for (const ADTokenCacheItem& item : ADTokenCache::defaultCache().allItems().items) {
    QJsonObject description = describeItem(item);
    description.remove(QStringLiteral("expiresOn"));
    if (item.expiresOn.isValid()) {
      description.insert("expiresIn", qRound64(static_cast<double>(now.msecsTo(item.expiresOn)) / 1000));
    }
    items.append(description);
  }
  return items;
}

StepOutcome setTokens(StepArguments& step) {
  const QJsonValue list = step.raw("items");
  if (!list.isArray()) return StepOutcome::failed(QStringLiteral("\"items\" is not a list"));
  QList<ADTokenCacheItem> items;
  const QJsonArray elements = list.toArray();
  for (const QJsonValue& element : elements) {
    if (!element.isObject()) return StepOutcome::failed(QStringLiteral("an item is not an object"));
    StepArguments values(element.toObject());
    items.append(readItem(values));
    if (!values.isGood()) return values.outcome();
  }
  if (const auto failure = ADTokenCache::defaultCache().replaceAllItems(items)) {
    return StepOutcome::failed(QStringLiteral("the token cache took no items"));
  }
  return StepOutcome::played();
}

}  // namespace tokenstate
