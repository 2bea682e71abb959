#pragma once

#include "host/KZFoundation/Dictionary.h"

// Hears how the search for an Exchange service ended. Main thread only.
class ExchangeResolveResultReceiving {
 public:
  virtual ~ExchangeResolveResultReceiving() = default;

  virtual void onExchangeResolveDone(const Dictionary& result) = 0;
};
