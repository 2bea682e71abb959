#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int kWatched = 3000;  // milliseconds
constexpr int kMostAttempts = 10;

QByteArray contentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qint64 numberAfter(const QByteArray& text, const QByteArray& key) {
  const qsizetype at = text.indexOf(key);
  return at < 0 ? 0 : text.mid(at + key.size()).trimmed().split('\n').first().toLongLong();
}

// The activity so far of a process and those that it started.
struct Activity {
  qint64 wakeUps = 0;
  qint64 clockTicks = 0;
  int processes = 0;

  static Activity of(const QString& processId) {
    const QString place = "/proc/" + processId;
    Activity sum{.processes = 1};
    const QList<QByteArray> fields = contentOf(place + "/stat").split(')').last().split(' ');
    sum.clockTicks = fields.value(12).toLongLong() + fields.value(13).toLongLong();
    for (const QString& thread : QDir(place + "/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      const QString task = place + "/task/" + thread;
      sum.wakeUps += numberAfter(contentOf(task + "/status"), "\nvoluntary_ctxt_switches:");
      for (const QByteArray& child : contentOf(task + "/children").simplified().split(' ')) {
        if (!child.isEmpty()) sum.add(of(QString::fromLatin1(child)));
      }
    }
    return sum;
  }

  void add(const Activity& other) {
    wakeUps += other.wakeUps;
    clockTicks += other.clockTicks;
    processes += other.processes;
  }
};

// Every wake-up of every thread counts, those of the sandbox too.
TEST(IdleCompanion, SleepsWithItsWindowsOpen) {
  const QTemporaryDir state;
  const QTemporaryDir runtime;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert("XDG_RUNTIME_DIR", runtime.path());
  QProcess companion;
  companion.setProcessEnvironment(environment);
  companion.start(COMPANION, {"--plugin", PREFERENCES, "--state", state.path()});
  ASSERT_TRUE(companion.waitForStarted());
  const QString processId = QString::number(companion.processId());
  // The start ends at some time; after that nothing happens without input.
  Activity before;
  Activity after = Activity::of(processId);
  int attempt = 0;
  do {
    before = after;
    QTest::qWait(kWatched);
    after = Activity::of(processId);
  } while (++attempt < kMostAttempts && (after.processes < 2 || after.wakeUps > before.wakeUps));
  std::printf("idle: %lld wake-ups and %lld clock ticks in %d ms, after %d rounds\n",
              static_cast<long long>(after.wakeUps - before.wakeUps),
              static_cast<long long>(after.clockTicks - before.clockTicks), kWatched, attempt);
  EXPECT_EQ(after.processes, 2);
  EXPECT_EQ(after.wakeUps - before.wakeUps, 0);
  EXPECT_EQ(after.clockTicks - before.clockTicks, 0);
  companion.terminate();
  companion.waitForFinished();
}

}  // namespace
