#pragma once

#include <QIODevice>
#include <chrono>

#include "companion/format/LineWriter.h"
#include "companion/runtime/PluginHost.h"
#include "companion/session/HostSteps.h"
#include "companion/session/PluginSteps.h"
#include "companion/session/ScriptSteps.h"
#include "companion/session/StepTable.h"
#include "companion/session/UserSteps.h"

// Plays a script against a plug-in and prints what comes back.
class Session final {
 public:
  enum class Trace { Off, On };
  // The program's exit status.
  enum class End { Played = 0, StepFailed = 2 };

  Session(PluginHost* host, LineWriter* writer,
          Trace trace);  // not owned; load the plug-in before playing

  End play(QIODevice* script);

  // The sum of the waits that the script has asked for, the running one included. Any thread.
  std::chrono::milliseconds waited() const { return m_scriptSteps.waited(); }
  // The address that marks the notifications which the script posts.
  const void* poster() const { return m_pluginSteps.poster(); }

 private:
  void print(const PluginEvent& event, Trace trace);
  StepOutcome playStep(const QJsonObject& step);
  End fail(const QString& reason, int lineNumber);

  LineWriter* m_writer;
  PluginSteps m_pluginSteps;
  UserSteps m_userSteps;
  HostSteps m_hostSteps;
  ScriptSteps m_scriptSteps;
  StepTable m_table;
  PluginHost::Token m_observer;
};
