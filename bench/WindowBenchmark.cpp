#include <QAction>
#include <QPointer>
#include <memory>

#include "bench/BenchHost.h"
#include "bench/FrameWatch.h"
#include "bench/PlainWindow.h"
#include "bench/ReducedMotion.h"
#include "bench/Rounds.h"
#include "companion/runtime/PluginHost.h"
#include "companion/runtime/PreferencesWindow.h"
#include "host/KZFoundation/KZCommands.h"
#include "platform/FrameLayout.h"
#include "platform/WindowController.h"

namespace {

using namespace std::chrono_literals;
using Clock = FrameWatch::Clock;

constexpr auto kQuiet = 20ms;
constexpr int kOpenRounds = 40;
constexpr int kSwitchRounds = 100;

void trigger(KZCommand command) {
  benchhost::host().trigger(command, {});
}

Window* openPreferences() {
  trigger(KZCommand::KZCmdShowPreference);
  Window* window = findPreferencesWindow();
  reduceMotion(window);
  return window;
}

void closePreferences(FrameWatch& frames) {
  trigger(KZCommand::KZCmdDestroyPreference);
  frames.waitForQuiet(kQuiet);
}

// Measured once, because a second load in this process finds the library mapped.
void pluginLoad(benchmark::State& state) {
  for ([[maybe_unused]] auto once : state) {
    state.SetIterationTime(std::chrono::duration<double>(benchhost::loadTime()).count());
  }
}
BENCHMARK(pluginLoad)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

void openWindow(benchmark::State& state) {
  FrameWatch frames;
  const QList<PaneRecipe> recipes = recipesOf(*openPreferences());
  closePreferences(frames);
  const auto openOurs = [&] {
    const auto start = Clock::now();
    const Window* window = openPreferences();
    const auto end = frames.waitForFrameOf(window);
    closePreferences(frames);
    return end - start;
  };
  const auto openPlain = [&] {
    const auto start = Clock::now();
    const auto window = std::make_unique<PlainWindow>(recipes);
    window->show();
    window->raise();
    window->activateWindow();
    const auto end = frames.waitForFrameOf(window.get());
    window->hide();
    frames.waitForQuiet(kQuiet);
    return end - start;
  };
  Rounds{openOurs, openPlain}.run(state);
}
BENCHMARK(openWindow)->Iterations(kOpenRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

void switchPane(benchmark::State& state) {
  FrameWatch frames;
  const Window* window = openPreferences();
  const QList<PaneRecipe> recipes = recipesOf(*window);
  PlainWindow plain(recipes);
  plain.show();
  qsizetype ours = 0;
  qsizetype theirs = 0;
  const auto switchOurs = [&] {
    frames.waitForQuiet(kQuiet);
    ours = (ours + 1) % recipes.size();
    const auto start = Clock::now();
    paneItemsOf(*window).at(ours)->trigger();
    return frames.waitForFrameOf(subviewsOf(contentViewOf(*window)).last()) - start;
  };
  const auto switchPlain = [&] {
    frames.waitForQuiet(kQuiet);
    theirs = (theirs + 1) % recipes.size();
    const auto start = Clock::now();
    plain.showPane(theirs);
    return frames.waitForFrameOf(plain.shownPane()) - start;
  };
  Rounds{switchOurs, switchPlain}.run(state);
  closePreferences(frames);
}
BENCHMARK(switchPane)->Iterations(kSwitchRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
