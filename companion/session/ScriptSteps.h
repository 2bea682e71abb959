#pragma once

#include <atomic>
#include <chrono>

#include "companion/format/LineWriter.h"
#include "companion/session/StepTable.h"

// The steps of the script itself: waiting, marking, measuring, taking pictures.
class ScriptSteps final {
 public:
  explicit ScriptSteps(LineWriter* writer) : m_writer(writer) {}  // not owned

  void addTo(StepTable* table);

  std::chrono::milliseconds waited() const { return std::chrono::milliseconds(m_waitedMs); }

 private:
  StepOutcome wait(StepArguments& step);
  StepOutcome echo(StepArguments& step);
  StepOutcome measure(StepArguments& step);
  StepOutcome screenshot(StepArguments& step);

  LineWriter* m_writer;
  std::atomic<qint64> m_waitedMs = 0;
};
