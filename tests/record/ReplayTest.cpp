#include <gtest/gtest.h>

#include <QDir>
#include <QJsonDocument>
#include <QRegularExpression>

#include "tests/record/PlayedRecord.h"

namespace {

std::vector<std::string> scripts() {
  std::vector<std::string> names;
  for (const QString& name : QDir(FLOWS).entryList({"*.jsonl"})) names.push_back(name.toStdString());
  return names;
}

QStringList passwordsTypedIn(const QStringList& script) {
  QStringList passwords;
  for (const QString& line : script) {
    const QJsonObject step = QJsonDocument::fromJson(line.toUtf8()).object();
    if (step.value("type") == "m_passwordInputTxt") passwords.append(step.value("text").toString());
  }
  return passwords;
}

class RecordedFlow : public testing::TestWithParam<std::string> {};

TEST_P(RecordedFlow, PlaysAgainAndRecordsTheSameWithoutPasswords) {
  const QStringList script = linesOf(QDir(FLOWS).filePath(QString::fromStdString(GetParam())));
  const PlayedRecord first(script);
  ASSERT_EQ(first.run().status, 0) << qPrintable(first.run().complaints);
  const QTemporaryDir folder;
  const QString again = folder.filePath("again.jsonl");
  const SessionRun run = runSession(first.lines(), {"--check", "--record", again});
  EXPECT_EQ(run.status, 0) << qPrintable(run.lines.value(run.lines.size() - 1));
  EXPECT_EQ(first.bytes().toStdString(), linesOf(again).join(u'\n').toStdString());
  for (const QString& password : passwordsTypedIn(script)) {
    // Alone or behind a user name.
    for (const char before : {'"', ':'})
      EXPECT_FALSE(first.bytes().contains(before + password.toUtf8() + '"')) << first.bytes().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Scripts, RecordedFlow, testing::ValuesIn(scripts()), [](const auto& script) {
  return QString::fromStdString(script.param).chopped(6).remove(u'-').toStdString();
});

const QStringList kUpdates = {R"({"set": "store", "values": {"siteName": "meet.example.com"}})",
                              R"({"command": 8})", R"({"command": 8})"};

TEST(RecordCheck, NamesTheFirstDifference) {
  const PlayedRecord record(kUpdates);
  QStringList altered = record.lines();
  const qsizetype output = altered.indexOf(QRegularExpression("^# <- .*\"sent\":8.*"));
  ASSERT_GE(output, 0);

  altered[output].replace("meet.example.com", "other.example.com");
  SessionRun run = record.check(altered);
  EXPECT_EQ(run.status, 1);
  QJsonObject difference = run.last().value("different").toObject();
  EXPECT_EQ(difference.value("line").toInt(), output + 1);
  EXPECT_EQ(difference.value("expected").toObject().value("sent").toInt(), 8);
  EXPECT_EQ(difference.value("got").toObject().value("sent").toInt(), 8);

  altered = record.lines();
  altered.append(R"(# <- {"sent":3})");
  run = record.check(altered);
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.last().value("different").toObject().value("got").isNull());

  altered = record.lines();
  altered.removeAt(altered.lastIndexOf(QRegularExpression("^# <- .*")));
  run = record.check(altered);
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.last().value("different").toObject().value("line").isNull());
  EXPECT_EQ(record.check(QStringList{"{\"command\": \"none\"}"}).status, 2);
}

// To the plug-in a constant and an equal text are different, and so they must be when the record is played.
TEST(Record, KeepsTheIdentityOfConstants) {
  const PlayedRecord record({R"({"command": 20, "content": {"kproximityCommand": "kstartDetectVD"}})",
                             R"({"command": 20, "content": {"kproximityCommand": "@kstartDetectVD"}})",
                             R"({"command": 9, "content": {"text": "@@sign"}})"});
  const QStringList steps = stepsIn(record.lines());
  ASSERT_EQ(steps.size(), 3) << record.bytes().toStdString();
  EXPECT_TRUE(steps[0].contains("\"kstartDetectVD\""));
  EXPECT_TRUE(steps[1].contains("\"@kstartDetectVD\""));
  EXPECT_TRUE(steps[2].contains("\"@@sign\""));
}

// What the plug-in writes it writes again; what others write would be missing.
TEST(Record, HoldsTheHostsWritesAndNotThePluginsOwn) {
  const PlayedRecord record({R"({"command": 2})", R"({"pane": "Notifications"})", R"({"wait": 400})",
                             R"({"choose": "m_minutesBtn", "item": "5"})",
                             R"({"set": "store", "values": {"siteName": "other.example.com"}})",
                             R"({"set": "host", "joinByNumberLink": "https://join.example.com"})",
                             R"({"close": true})"});
  EXPECT_FALSE(record.bytes().contains("meetingNotification")) << record.bytes().toStdString();
  const QStringList lines = record.lines();
  const qsizetype choice = lines.indexOf(R"({"choose":"m_minutesBtn","item":"5"})");
  const qsizetype site = lines.indexOf(R"({"set":"store","values":{"siteName":"other.example.com"}})");
  ASSERT_GE(choice, 0) << record.bytes().toStdString();
  EXPECT_GT(site, choice);
  EXPECT_EQ(lines.last().toStdString(), R"({"close":true})");
}

}  // namespace
