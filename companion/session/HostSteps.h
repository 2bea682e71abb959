#pragma once

#include "companion/runtime/Border.h"
#include "companion/session/LineWriter.h"
#include "companion/session/StepTable.h"

// `get` and `set`: what the host owns, and what the window shows.
class HostSteps final {
 public:
  HostSteps(Border* border, LineWriter* writer);  // not owned

  void addTo(StepTable* table);

 private:
  StepOutcome dispatch(const StepTable& table, const char* verb, StepArguments& step);
  StepOutcome getToken(StepArguments& step);
  StepOutcome answer(const QJsonValue& result);

  Border* m_border;
  LineWriter* m_writer;
  StepTable m_getters;
  StepTable m_setters;
};
