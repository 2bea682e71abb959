#include "bench/BenchHost.h"

#include <QTemporaryDir>
#include <cstdio>
#include <memory>

#include "companion/runtime/PluginHost.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/KZTrace.h"

namespace benchhost {
namespace {

struct State {
  QTemporaryDir folder;
  PluginHost host;
  std::chrono::nanoseconds loadTime{};
};

std::unique_ptr<State> state;

}  // namespace

bool start() {
  state = std::make_unique<State>();
  if (!KZPlistFileHandle::sharedInstance().open(state->folder.path())) return false;
  muteKZTrace();
  const auto begin = std::chrono::steady_clock::now();
  const bool isLoaded = state->host.load(defaultPluginPath());
  state->loadTime = std::chrono::steady_clock::now() - begin;
  if (!isLoaded) std::fprintf(stderr, "%s\n", qPrintable(state->host.errorText()));
  return isLoaded;
}

void stop() {
  KZPlistFileHandle::sharedInstance().close();
  state.reset();
}

PluginHost& host() {
  return state->host;
}

std::chrono::nanoseconds loadTime() {
  return state->loadTime;
}

}  // namespace benchhost
