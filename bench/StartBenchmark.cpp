#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include "bench/Rounds.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kStartRounds = 30;
constexpr int kStartMilliseconds = 30'000;

// From the start of the process to that line on its output.
std::chrono::nanoseconds timeUntil(const QByteArray& line, const QString& program,
                                   const QStringList& arguments) {
  const auto start = Clock::now();
  QProcess process;
  process.start(program, arguments);
  QByteArray said;
  while (!said.contains(line) && process.waitForReadyRead(kStartMilliseconds))
    said += process.readAllStandardOutput();
  const auto end = Clock::now();
  process.waitForFinished();
  return end - start;
}

// The companion with its plug-in and Preferences, compared with an empty window.
void startUntil(benchmark::State& state, const QByteArray& line) {
  const QTemporaryDir folder;
  const QStringList arguments = {"--first-frame", "--state", folder.path()};
  Rounds{[&] { return timeUntil(line, COMPANION, arguments); },
         [] { return timeUntil("first frame\n", EMPTY_WINDOW, {}); }}
      .run(state);
}

void companionFirstFrame(benchmark::State& state) {
  startUntil(state, "first frame\n");
}
BENCHMARK(companionFirstFrame)->Iterations(kStartRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

void companionReady(benchmark::State& state) {
  startUntil(state, "ready\n");
}
BENCHMARK(companionReady)->Iterations(kStartRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
