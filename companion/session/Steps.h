#pragma once

#include <atomic>

#include "companion/runtime/PluginHost.h"
#include "companion/session/Step.h"
#include "companion/session/UserInput.h"

// The state that the steps of a session share. Its address marks the notifications that a script posts.
struct StepContext {
  PluginHost* host;  // not owned
  UserInput input = {};
  std::atomic<qint64> waitedMs = 0;  // the sum of the waits, the running one included
};

using StepFunction = StepResult(Step& step, StepContext& context);

namespace steps {

// Actions of a host.
StepFunction command;
StepFunction notify;
StepFunction post;
StepFunction personalRoom;

// Actions of a user in the plug-in's window.
StepFunction click;
StepFunction type;
StepFunction key;
StepFunction choose;
StepFunction pane;
StepFunction close;
StepFunction activate;

// The host's state and the window's contents.
StepFunction get;
StepFunction set;

// Steps that concern the script only.
StepFunction wait;
StepFunction echo;
StepFunction measure;
StepFunction screenshot;

}  // namespace steps
