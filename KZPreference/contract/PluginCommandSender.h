#pragma once

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZCommands.h"

// Sends the plug-in's commands to the host. Main thread only.
class PluginCommandSender {
 public:
  virtual ~PluginCommandSender() = default;

  // The host's result; 0 while there is no host.
  virtual quint64 sendPluginCommand(KZCommand command, const Content& content) = 0;
};
