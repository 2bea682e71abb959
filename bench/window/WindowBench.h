#pragma once

#include <QString>
#include <optional>

#include "bench/FrameWatch.h"
#include "companion/runtime/PluginHost.h"

class Window;

// Opens the plug-in's window in this process and measures the times that a user waits.
class WindowBench final {
 public:
  enum class Fade { Off, On };

  explicit WindowBench(Fade fade) : m_fade(fade) {}

  // Loads the plug-in and returns the time of the first frame. Nothing, with an `errorText`, when it cannot
  // be loaded or shows no window.
  [[nodiscard]] std::optional<FrameWatch::Clock::time_point> open(const QString& plugin);
  const QString& errorText() const { return m_errorText; }

  // Milliseconds, over 100 switches between all panes.
  struct Switches {
    double median;
    double p95;
    double firstVisit;
    double settle;
  };
  Switches measureSwitches();  // after `open`

 private:
  struct Switch {
    double painted;  // milliseconds
    double settled;
  };

  Switch measureSwitch(qsizetype pane);

  Fade m_fade;
  PluginHost m_host;
  FrameWatch m_frames;
  Window* m_window = nullptr;
  QString m_errorText;
};
