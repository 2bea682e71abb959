#pragma once

#include <chrono>

// Runs the event loop for a script. Main thread only.
namespace eventpump {

// Until nothing is pending: posted events, queued calls, deferred deletes, and what the display server has
// sent. Timers and animations that are not due are not waited for.
void settle();

// For that long, then until nothing is pending.
void run(std::chrono::milliseconds time);

}  // namespace eventpump
