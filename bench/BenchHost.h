#pragma once

#include <chrono>

class PluginHost;

// The plug-in, loaded once in this process as a host loads it, with a store of its own and a muted trace.
namespace benchhost {

// False with the reason on standard error.
[[nodiscard]] bool start();
void stop();

PluginHost& host();
std::chrono::nanoseconds loadTime();

}  // namespace benchhost
