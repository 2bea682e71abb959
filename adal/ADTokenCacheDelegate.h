#pragma once

#include "adal/ADALExport.h"

class ADTokenCache;

// Keeps a token cache's contents elsewhere. Called around every access, on the thread of the access and under
// the cache's lock; may serialize and deserialize the cache it is given, nothing else.
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
