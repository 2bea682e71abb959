#pragma once

#include "companion/runtime/PluginHost.h"
#include "companion/session/StepTable.h"

// What a host does to its plug-in: commands, notifications, the personal room.
class PluginSteps final {
 public:
  explicit PluginSteps(PluginHost* host) : m_host(host) {}  // not owned

  void addTo(StepTable* table);

  // The address of this object marks the notifications that a script posts.
  const void* poster() const { return this; }

 private:
  StepOutcome command(StepArguments& step);
  StepOutcome notify(StepArguments& step);
  StepOutcome post(StepArguments& step);
  StepOutcome personalRoom(StepArguments& step);

  PluginHost* m_host;
};
