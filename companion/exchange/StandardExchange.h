#pragma once

#include "companion/exchange/ExchangeConfiguration.h"

// The ordinary network, the system's certificates, and the online services known to everybody. The two texts
// are the registration of the application that signs in.
ExchangeConfiguration standardExchangeConfiguration(const QString& clientId, const QString& redirectUri);
