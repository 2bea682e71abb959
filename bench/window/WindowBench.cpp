#include "bench/window/WindowBench.h"

#include <QAction>
#include <algorithm>
#include <cmath>
#include <vector>

#include "bench/ReducedMotion.h"
#include "companion/runtime/PreferencesWindow.h"
#include "host/KZFoundation/KZCommands.h"
#include "platform/FrameLayout.h"
#include "platform/WindowController.h"

namespace {

using namespace std::chrono_literals;

constexpr int kSwitches = 100;
constexpr auto kQuiet = 70ms;

double millisecondsBetween(FrameWatch::Clock::time_point start, FrameWatch::Clock::time_point end) {
  return std::chrono::duration<double, std::milli>(end - start).count();
}

// The value below which that share of the values lies.
double quantile(std::vector<double> values, double share) {
  if (values.empty()) return 0;
  std::ranges::sort(values);
  return values[static_cast<size_t>(std::lround(share * static_cast<double>(values.size() - 1)))];
}

}  // namespace

std::optional<FrameWatch::Clock::time_point> WindowBench::open(const QString& plugin) {
  if (!m_host.load(plugin)) {
    m_errorText = m_host.errorText();
    return {};
  }
  m_host.trigger(KZCommand::KZCmdShowPreference, {});
  m_window = findPreferencesWindow();
  if (!m_window) {
    m_errorText = QStringLiteral("the plug-in shows no window");
    return {};
  }
  return m_frames.waitForFrameOf(m_window);
}

WindowBench::Switches WindowBench::measureSwitches() {
  if (m_fade == Fade::Off) reduceMotion(m_window);
  const qsizetype panes = paneItemsOf(*m_window).size();
  std::vector<double> painted;
  std::vector<double> settled;
  std::vector<double> firstVisits;
  for (int count = 1; count <= kSwitches; ++count) {
    const Switch measured = measureSwitch(count % panes);
    painted.push_back(measured.painted);
    settled.push_back(measured.settled);
    if (count < panes) firstVisits.push_back(measured.painted);
  }
  return {.median = quantile(painted, 0.5),
          .p95 = quantile(painted, 0.95),
          .firstVisit = quantile(firstVisits, 0.5),
          .settle = quantile(settled, 0.5)};
}

WindowBench::Switch WindowBench::measureSwitch(qsizetype pane) {
  m_frames.waitForQuiet(kQuiet);
  const auto start = FrameWatch::Clock::now();
  paneItemsOf(*m_window).at(pane)->trigger();
  // During a fade the overlay is painted, not the panes.
  const QWidget* target = m_fade == Fade::On ? m_window : subviewsOf(contentViewOf(*m_window)).last();
  const auto painted = m_frames.waitForFrameOf(target);
  const auto settled = std::max(painted, m_frames.waitForQuiet(kQuiet));
  return {millisecondsBetween(start, painted), millisecondsBetween(start, settled)};
}
