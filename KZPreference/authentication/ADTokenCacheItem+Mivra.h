#pragma once

struct ADTokenCacheItem;

// Whether the access token is expired or will be within ten minutes. At exactly ten minutes it is still good.
bool isExpiredWithPrejudge(const ADTokenCacheItem& item);
