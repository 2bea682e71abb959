#pragma once

#include <chrono>

// Runs the event loop for a script. Main thread only.
namespace eventpump {

// Handles events until none is pending: posted events, queued calls, deferred deletes, and the display
// server's events. Timers and animations that are not due are not waited for.
void settle();

// For that long, then until nothing is pending.
void run(std::chrono::milliseconds time);

}  // namespace eventpump
