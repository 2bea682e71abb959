#pragma once

#include "KZPreference/contract/PluginCommandSender.h"

// A way out that leads nowhere.
class SilentSender final : public PluginCommandSender {
 public:
  quint64 sendPluginCommand(KZCommand, const Content&) override { return 0; }
};
