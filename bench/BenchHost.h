#pragma once

#include <chrono>

class PluginHost;

// Loads the plug-in once in this process, as a host does, with a store of its own and a muted trace.
namespace benchhost {

// False, with the reason on standard error, when it cannot be loaded.
[[nodiscard]] bool start();
void stop();

PluginHost& host();
std::chrono::nanoseconds loadTime();

}  // namespace benchhost
