#pragma once

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZCommands.h"

// The way out to the host. Main thread only.
class PluginCommandSender {
 public:
  virtual ~PluginCommandSender() = default;

  // The host's answer; 0 while there is no host.
  virtual quint64 sendPluginCommand(KZCommand command, const Content& content) = 0;
};
