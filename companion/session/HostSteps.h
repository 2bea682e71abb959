#pragma once

#include "companion/format/LineWriter.h"
#include "companion/runtime/PluginHost.h"
#include "companion/session/StepTable.h"

// `get` and `set`: what the host owns, and what the window shows.
class HostSteps final {
 public:
  HostSteps(PluginHost* host, LineWriter* writer);  // not owned

  void addTo(StepTable* table);

 private:
  StepOutcome dispatch(const StepTable& table, const char* verb, StepArguments& step);
  StepOutcome getToken(StepArguments& step);
  StepOutcome answer(const QJsonValue& result);

  PluginHost* m_host;
  LineWriter* m_writer;
  StepTable m_getters;
  StepTable m_setters;
};
