#pragma once

#include "companion/exchange/DiscoveryFailure.h"
#include "companion/network/HttpCall.h"

// What an answer that cannot be used comes to.
DiscoveryFailureKind failureOf(const HttpAnswer& answer);
