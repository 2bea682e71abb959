#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>

#include "bench/window/MemoryUse.h"
#include "bench/window/WindowBench.h"
#include "companion/runtime/Application.h"
#include "companion/runtime/PluginHost.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"

namespace {

using WallClock = std::chrono::system_clock;

constexpr int kUnusable = 2;
constexpr int kPluginFailed = 3;

// START_NS from the environment, or the start of main without it.
WallClock::time_point startOfProgram() {
  bool isNumber = false;
  const qint64 nanoseconds = qEnvironmentVariable("START_NS").toLongLong(&isNumber);
  if (!isNumber) return WallClock::now();
  return WallClock::time_point(
      std::chrono::duration_cast<WallClock::duration>(std::chrono::nanoseconds(nanoseconds)));
}

template <typename Duration>
double milliseconds(Duration duration) {
  return std::chrono::duration<double, std::milli>(duration).count();
}

// Flushes each line, so that a reader gets the first frame's before the switches end.
template <typename... Values>
void printLine(const char* format, Values... values) {
  std::printf(format, values...);
  std::fflush(stdout);
}

int benchWindow(WallClock::time_point start, FrameWatch::Clock::time_point toolkitReady,
                WindowBench::Fade fade, const QString& plugin) {
  const QTemporaryDir state;
  (void)KZPlistFileHandle::sharedInstance().open(state.path());  // a new folder cannot be locked
  muteKZTrace();
  WindowBench bench(fade);
  const auto painted = bench.open(plugin);
  if (!painted) {
    std::fprintf(stderr, "prefs-bench: %s\n", qPrintable(bench.errorText()));
    return kPluginFailed;
  }
  printLine("{\"event\":\"first_paint\",\"ms\":%.3f,\"open_ms\":%.3f}\n",
            milliseconds(WallClock::now() - start), milliseconds(*painted - toolkitReady));
  const WindowBench::Switches switches = bench.measureSwitches();
  printLine(
      "{\"event\":\"switch\",\"ms_median\":%.3f,\"ms_p95\":%.3f,\"ms_first_visit\":%.3f,\"ms_settle\":%.3f}"
      "\n",
      switches.median, switches.p95, switches.firstVisit, switches.settle);
  const MemoryUse memory = MemoryUse::now();
  printLine("{\"event\":\"rss\",\"kb\":%lld,\"hwm_kb\":%lld,\"pss_kb\":%lld,\"dirty_kb\":%lld}\n",
            memory.resident, memory.mostResident, memory.proportional, memory.dirty);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const auto start = startOfProgram();
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
      qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const auto toolkitReady = FrameWatch::Clock::now();

  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Opens the Preferences window and prints three JSON lines: first_paint, switch and rss.\n\n"
      "ms counts from START_NS (nanoseconds of the wall clock, in the environment) to the first frame, "
      "open_ms from "
      "the initialised toolkit, the plug-in's load included. A frame counts when it is painted and, on X11, "
      "a round "
      "trip to the server is over: the server has its pixels then. Offscreen it counts when it is painted.\n"
      "switch is over 100 pane switches, each from the request to that pane's painted frame, after 70 ms "
      "without a "
      "frame; ms_settle to the last frame. ms_first_visit is the median of each pane's first showing.\n"
      "With --fade a switch is painted at its first frame and settled at the fade's last one.");
  parser.addHelpOption();
  parser.addOptions({{"window", "Measure the window."},
                     {"fade", "With the cross-fade."},
                     {"plugin", "The plug-in to load.", "FILE", defaultPluginPath()}});
  parser.process(Application::arguments());
  if (!parser.isSet("window")) {
    std::fprintf(stderr, "prefs-bench: --window is required\n");
    return kUnusable;
  }
  const auto fade = parser.isSet("fade") ? WindowBench::Fade::On : WindowBench::Fade::Off;
  return benchWindow(start, toolkitReady, fade, parser.value("plugin"));
}
