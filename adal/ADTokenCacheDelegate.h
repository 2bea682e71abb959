#pragma once

#include "adal/ADALExport.h"

class ADTokenCache;

// Stores a token cache's contents. Called before and after every access, on its thread and under the cache's
// lock. It may serialize and deserialize the given cache, and nothing else. A write that turns out to change
// nothing ends without didWriteCache.
class ADAL_EXPORT ADTokenCacheDelegate {
 public:
  ADTokenCacheDelegate() = default;
  virtual ~ADTokenCacheDelegate() = default;

  virtual void willAccessCache(ADTokenCache& cache) = 0;
  virtual void didAccessCache(ADTokenCache& cache) = 0;
  virtual void willWriteCache(ADTokenCache& cache) = 0;
  virtual void didWriteCache(ADTokenCache& cache) = 0;

 protected:
  ADTokenCacheDelegate(const ADTokenCacheDelegate&) = default;
  ADTokenCacheDelegate& operator=(const ADTokenCacheDelegate&) = default;
};
