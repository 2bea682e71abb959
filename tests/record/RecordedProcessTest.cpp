#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "tests/record/PlayedRecord.h"

namespace {

constexpr int kLongestRun = 60'000;  // milliseconds

QByteArray recordIn(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The companion as its users start it, without their session.
class RecordedProcess : public testing::Test {
 protected:
  void start(const QStringList& options) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_RUNTIME_DIR", m_folder.path());
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    m_companion.setProcessEnvironment(environment);
    m_companion.start(COMPANION, QStringList{"--plugin", PREFERENCES, "--state", m_folder.filePath("state"),
                                             "--record", path()} +
                                     options);
  }

  QString path() const { return m_folder.filePath("record.jsonl"); }

  QTemporaryDir m_folder;
  QProcess m_companion;
};

TEST_F(RecordedProcess, ADemonstrationPlaysAgain) {
  start({"--demo", "--out", m_folder.filePath("pictures")});
  ASSERT_TRUE(m_companion.waitForFinished(kLongestRun));
  ASSERT_EQ(m_companion.exitCode(), 0) << m_companion.readAllStandardError().toStdString();
  const QStringList lines = linesOf(path());
  for (const char* pane : {"Account", "Meetings", "Notifications", "Video devices"})
    EXPECT_EQ(lines.count(QStringLiteral("{\"pane\":\"%1\"}").arg(pane)), 2)
        << pane << " in\n"
        << lines.join(u'\n').toStdString();
  const SessionRun run = runSession(lines, {"--check"});
  EXPECT_EQ(run.status, 0) << qPrintable(run.lines.value(run.lines.size() - 1))
                           << run.complaints.toStdString();
}

TEST_F(RecordedProcess, AKilledCompanionLeavesAWholeRecord) {
  // Each time a little later.
  for (const int lines : {3, 8, 12}) {
    start({});
    EXPECT_TRUE(QTest::qWaitFor([&] { return recordIn(path()).count('\n') >= lines; }, 20'000))
        << recordIn(path()).toStdString();
    m_companion.kill();
    ASSERT_TRUE(m_companion.waitForFinished(kLongestRun));
    const QByteArray record = recordIn(path());
    EXPECT_TRUE(record.endsWith('\n'));
    const SessionRun run = runSession(linesOf(path()));
    EXPECT_EQ(run.status, 0) << record.toStdString() << run.complaints.toStdString();
  }
}

}  // namespace
