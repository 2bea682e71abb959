#pragma once

#include <atomic>

#include "companion/runtime/PluginHost.h"
#include "companion/session/Step.h"
#include "companion/session/UserInput.h"

// What the steps of a session share. Its address marks the notifications that a script posts.
struct StepContext {
  PluginHost* host;  // not owned
  UserInput input = {};
  std::atomic<qint64> waitedMs = 0;  // the sum of the waits, the running one included
};

using StepFunction = StepResult(Step& step, StepContext& context);

namespace steps {

// What a host does to its plug-in.
StepFunction command;
StepFunction notify;
StepFunction post;
StepFunction personalRoom;

// What a user does in the plug-in's window.
StepFunction click;
StepFunction type;
StepFunction key;
StepFunction choose;
StepFunction pane;
StepFunction close;
StepFunction activate;

// What the host owns, and what the window shows.
StepFunction get;
StepFunction set;

// What belongs to the script itself.
StepFunction wait;
StepFunction echo;
StepFunction measure;
StepFunction screenshot;

}  // namespace steps
