#include <fcntl.h>
#include <unistd.h>
#include <QFile>

#include "bench/BenchHost.h"
#include "bench/Rounds.h"
#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kWriteRounds = 200;

// An unknown command.
void commandWithoutEffect(benchmark::State& state) {
  constexpr quint64 kUnused = 5;
  for ([[maybe_unused]] auto round : state)
    benchhost::host().core().onHandleOtherPluginsTriggerCommand(kUnused, {});
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(commandWithoutEffect);

// The plug-in sends a command and telemetry in return.
void commandWithAnswer(benchmark::State& state) {
  const auto joinByNumber = static_cast<quint64>(KZCommand::KZCmdJoinByNumber);
  for ([[maybe_unused]] auto round : state)
    benchhost::host().core().onHandleOtherPluginsTriggerCommand(joinByNumber, Dictionary());
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(commandWithAnswer);

// The least that a safe write needs.
bool writeBare(const QString& path, const QByteArray& bytes) {
  const QByteArray temporary = QFile::encodeName(path + QStringLiteral(".new"));
  const int file = ::open(temporary.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (file < 0) return false;
  const bool isWritten = ::write(file, bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size();
  const bool isSynced = ::fsync(file) == 0;
  const bool isClosed = ::close(file) == 0;
  return isWritten && isSynced && isClosed &&
         ::rename(temporary.constData(), QFile::encodeName(path).constData()) == 0;
}

void settingsWrite(benchmark::State& state) {
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  const QString path = store.filePath();
  int value = 0;
  const auto writeSetting = [&] {
    const auto start = Clock::now();
    store.setSiteName(QString::number(100'000 + ++value));
    return Clock::now() - start;
  };
  writeSetting();
  QFile file(path);
  const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  const QString barePath = path + QStringLiteral(".bare");
  bool isGood = !bytes.isEmpty();
  const auto writeSameBytes = [&] {
    const auto start = Clock::now();
    isGood = writeBare(barePath, bytes) && isGood;
    return Clock::now() - start;
  };
  Rounds{writeSetting, writeSameBytes}.run(state);
  if (!isGood) state.SkipWithError("the disk took nothing");
}
BENCHMARK(settingsWrite)->Iterations(kWriteRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
