#include "companion/app/Sandbox.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The value of that name in a process's status; empty when the process has ended.
QByteArray statusOf(const QString& processId, const QByteArray& name) {
  QFile status("/proc/" + processId + "/status");
  if (!status.open(QIODevice::ReadOnly)) return {};
  for (const QByteArray& line : status.readAll().split('\n')) {
    if (line.startsWith(name + ":\t")) return line.mid(name.size() + 2);
  }
  return {};
}

// An ended process stays a zombie until its parent has read its status.
bool isAlive(const QString& processId) {
  const QByteArray state = statusOf(processId, "State");
  return !state.isEmpty() && !state.startsWith('Z');
}

QString sandboxOf(qint64 parentId) {
  for (const QString& processId : QDir("/proc").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    if (statusOf(processId, "PPid").toLongLong() == parentId && statusOf(processId, "Name") == "kz-sandbox") {
      return processId;
    }
  }
  return {};
}

TEST(Sandbox, EndsWithItsObject) {
  auto sandbox = std::make_unique<Sandbox>();
  QSignalSpy failed(sandbox.get(), &Sandbox::failed);
  sandbox->start(KZ_SANDBOX);
  const QString processId = QString::number(sandbox->processId());
  EXPECT_TRUE(isAlive(processId));
  sandbox.reset();
  EXPECT_FALSE(isAlive(processId));
  EXPECT_TRUE(failed.isEmpty());
}

TEST(Sandbox, ReportsThatItCannotBeStarted) {
  for (const char* path : {"", "/nowhere/kz-sandbox", "/bin/true", "/bin/echo"}) {
    Sandbox sandbox;
    QSignalSpy failed(&sandbox, &Sandbox::failed);
    sandbox.start(path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failed.isEmpty(); }, 5000)) << path;
    QTest::qWait(50);
    EXPECT_EQ(failed.size(), 1) << path;
  }
}

TEST(Companion, LeavesNoSandboxBehindWhenItIsKilled) {
  const QTemporaryDir folder;
  QProcess companion;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  companion.setProcessEnvironment(environment);
  companion.start(COMPANION, {"--plugin", FAKE_PLUGIN, "--state", folder.path()});
  QString processId;
  ASSERT_TRUE(QTest::qWaitFor(
      [&] {
        processId = sandboxOf(companion.processId());
        return !processId.isEmpty();
      },
      10'000))
      << companion.readAllStandardError().toStdString();
  companion.kill();
  EXPECT_TRUE(companion.waitForFinished());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !isAlive(processId); }, 10'000));
}

}  // namespace
