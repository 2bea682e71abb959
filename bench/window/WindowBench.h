#pragma once

#include <QString>
#include <optional>

#include "bench/FrameWatch.h"
#include "companion/runtime/PluginHost.h"

class Window;

// Opens the plug-in's window in this process and measures what a user waits for.
class WindowBench final {
 public:
  enum class Fade { Off, On };

  explicit WindowBench(Fade fade) : m_fade(fade) {}

  // The plug-in's load included; nothing when it cannot be loaded or shows no window, with a reason.
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
