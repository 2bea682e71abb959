#pragma once

#include <QIODevice>
#include <chrono>
#include <functional>

#include "companion/session/Steps.h"

// Prints one line on standard output, flushed at once. Any thread.
void printLine(const Line& line);

// Plays a script with a plug-in and prints the results. Main thread only.
class Session final {
 public:
  struct Options {
    // Events that are printed only with an option.
    bool isPrintingTrace = false;
    bool isPrintingWrites = false;
    std::function<void(const Line&)> print = printLine;  // on the thread of the event
    std::function<void()> awaitLine = {};                // called before each line is read
  };

  // The host is not owned. Its plug-in is loaded before anything is played; events of the loading are
  // printed.
  Session(PluginHost* host, Options options);

  // False when a step could not be read or played: that is printed, and nothing after it.
  [[nodiscard]] bool play(QIODevice* script);

  // The sum of the script's waits, the current one included. Any thread.
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
