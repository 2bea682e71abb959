#pragma once

#include "companion/format/LineWriter.h"
#include "companion/session/StepTable.h"
#include "companion/session/UserInput.h"

// What a user does in the plug-in's window. What a user could not do prints a refusal.
class UserSteps final {
 public:
  explicit UserSteps(LineWriter* writer) : m_writer(writer) {}  // not owned

  void addTo(StepTable* table);

 private:
  StepOutcome click(StepArguments& step);
  StepOutcome type(StepArguments& step);
  StepOutcome key(StepArguments& step);
  StepOutcome choose(StepArguments& step);
  StepOutcome pane(StepArguments& step);
  StepOutcome close(StepArguments& step);
  StepOutcome activate(StepArguments& step);

  StepOutcome done(const QString& refused);

  LineWriter* m_writer;
  UserInput m_input;
};
