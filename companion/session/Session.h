#pragma once

#include <QIODevice>
#include <chrono>

#include "companion/session/Steps.h"

// Prints one line on standard output, flushed at once. Any thread.
void printLine(const Line& line);

// Plays a script against a plug-in and prints what comes back. Main thread only.
class Session final {
 public:
  // Events that are printed only where they are asked for.
  struct Options {
    bool isPrintingTrace = false;
    bool isPrintingWrites = false;
  };

  // The host is not owned. Its plug-in is loaded before anything is played; what the loading does is printed.
  Session(PluginHost* host, const Options& options);

  // False when a step could not be read or played: that is printed, and nothing after it.
  [[nodiscard]] bool play(QIODevice* script);

  // The sum of the waits that the script has asked for, the running one included. Any thread.
  std::chrono::milliseconds waited() const { return std::chrono::milliseconds(m_context.waitedMs); }
  // Marks the notifications that the script posts.
  const void* poster() const { return &m_context; }

 private:
  void print(const PluginEvent& event) const;
  StepResult playStep(const QByteArray& text);

  const Options m_options;
  StepContext m_context;
  PluginHost::Token m_observer;
};
