#pragma once

#include "companion/runtime/PluginHost.h"

// A command as if the host's plug-in had sent it.
inline void sendFromPlugin(PluginHost& host, KZCommand command, const Content& content) {
  host.sendPluginCommand(KZEventIdentify::monitorwith(0, static_cast<quint64>(command)), content);
}
