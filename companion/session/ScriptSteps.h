#pragma once

#include "companion/session/LineWriter.h"
#include "companion/session/StepTable.h"

// The steps of the script itself: waiting, marking, measuring, taking pictures.
class ScriptSteps final {
 public:
  explicit ScriptSteps(LineWriter* writer) : m_writer(writer) {}  // not owned

  void addTo(StepTable* table);

 private:
  StepOutcome wait(StepArguments& step);
  StepOutcome echo(StepArguments& step);
  StepOutcome measure(StepArguments& step);
  StepOutcome screenshot(StepArguments& step);

  LineWriter* m_writer;
};
