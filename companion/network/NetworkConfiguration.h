#pragma once

#include <QString>
#include <QUrl>
#include <chrono>
#include <functional>
#include <optional>

#include "adal/ADHttpExchange.h"

using NetworkEndpoint = ADHttpPeer;

// Where a host is to be reached in place of where its name points; nothing for the ordinary way.
using EndpointFinder = std::function<std::optional<NetworkEndpoint>(const QUrl&)>;

struct NetworkLimits {
  std::chrono::milliseconds request{10'000};  // one request, from its start to its last byte
  qint64 responseBytes = 1024 * 1024;
};

struct NetworkConfiguration {
  NetworkLimits limits = {};
  EndpointFinder endpoint = {};
  // Why an address must not be requested, in a sentence; empty where it may be. Unset, every address may.
  std::function<QString(const QUrl&)> refusal = {};
};

// Which hosts may be requested at all.
enum class NetworkReach { Sandbox, Network };
