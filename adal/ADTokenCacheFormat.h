#pragma once

#include <QByteArray>
#include <QList>
#include <optional>

#include "adal/ADTokenCacheItem.h"

// The stored form of a token cache: a mark, a version, the items, a check sum over everything before it.
QByteArray serializedTokens(const QList<ADTokenCacheItem>& items);

// Nothing for data that is cut off, damaged, of another version or not ours.
[[nodiscard]] std::optional<QList<ADTokenCacheItem>> deserializedTokens(const QByteArray& data);
