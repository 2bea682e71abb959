#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QSignalSpy>

#include "companion/app/Recording.h"
#include "companion/record/RecordFile.h"
#include "tests/record/PlayedRecord.h"

namespace {

TEST(RecordFile, IsItsUsersAloneAndWhole) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("record");
  QFile old(path);
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write("old\n");
  old.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
  old.close();
  RecordFile file;
  ASSERT_TRUE(file.open(path));
  EXPECT_TRUE(file.write("one"));
  EXPECT_TRUE(file.write("two"));
  // Still open: nothing waits for the end.
  EXPECT_EQ(linesOf(path), (QStringList{"one", "two"}));
  constexpr auto others = QFile::ReadOther | QFile::WriteOther | QFile::ReadGroup | QFile::WriteGroup;
  EXPECT_FALSE(QFileInfo(path).permissions() & others);
}

TEST(RecordFile, AFailureEndsTheRecordAndNotTheSession) {
  const QStringList script = {R"({"command": 2})", R"({"echo": "played"})"};
  const SessionRun full = runSession(script, {"--record", "/dev/full"});
  EXPECT_EQ(full.status, 2);
  EXPECT_EQ(full.last().value("echo").toString(), "played");
  EXPECT_TRUE(full.complaints.contains("ends early")) << qPrintable(full.complaints);
  const SessionRun unmade = runSession(script, {"--record", "/nowhere/at/all"});
  EXPECT_EQ(unmade.status, 2);
  EXPECT_TRUE(unmade.lines.isEmpty());
}

TEST(Recording, SaysWhatBecomesOfIt) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("record.jsonl");
  PluginHost host;
  Recording recording(&host);
  QSignalSpy noticed(&recording, &Recording::message);
  QSignalSpy changed(&recording, &Recording::changed);
  EXPECT_FALSE(recording.start("/nowhere/at/all"));
  EXPECT_TRUE(noticed.takeFirst().first().toString().contains("Choose another place"));
  ASSERT_TRUE(recording.start(path));
  EXPECT_TRUE(noticed.takeFirst().first().toString().contains(path));
  recording.stop();
  EXPECT_EQ(changed.size(), 2);
  // A full disk.
  ASSERT_TRUE(recording.start("/dev/full"));
  noticed.clear();
  ASSERT_TRUE(noticed.wait(1000));
  EXPECT_FALSE(recording.isRunning());
  EXPECT_TRUE(noticed.first().first().toString().contains("Make room"));
}

}  // namespace
