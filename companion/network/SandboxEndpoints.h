#pragma once

#include <QJsonObject>

#include "companion/network/NetworkConfiguration.h"

// Finds the hosts of a sandbox on this machine; its certificates vouch for them alone. `description` is one
// of the services in what kz-sandbox prints first; `others` finds every other host.
EndpointFinder sandboxEndpoints(const QJsonObject& description, EndpointFinder others);
