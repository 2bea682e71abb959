#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QThread>
#include <algorithm>
#include <memory>
#include <vector>

#include "companion/inspector/InspectorFilter.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

using Group = InspectorEvent::Group;

void traceTo(InspectorLog& log, const QString& name, const QString& text = {}) {
  log.record(KZTraceRecord{KZTraceLevel::Info, {}, name, text});
}

void turn() {
  QCoreApplication::processEvents();
}

TEST(InspectorEvent, TelemetryIsAKindOfItsOwn) {
  const Dictionary values{{TelemetryKey_FeatureName, "Click"}, {TelemetryKey_Boolean, "yes"}};
  const auto event = InspectorEvent::of(
      CommandToHost{static_cast<KZCommand>(23), Dictionary{{TelemetryKey_Values, values}}});
  EXPECT_EQ(event.group, Group::Telemetry);
  EXPECT_EQ(event.title.toStdString(), "Click");
  EXPECT_TRUE(event.content.contains("\"yes\""));
  const auto empty = InspectorEvent::of(CommandToHost{static_cast<KZCommand>(23)});
  EXPECT_EQ(empty.title.toStdString(), "KZCmdWriteTelemetry");
}

TEST(InspectorEvent, LongContentIsCutVisibly) {
  const QString odd = QString::fromUtf8("😀").repeated(100'000);
  for (const QString& text : {QString(1'000'000, u'x'), odd, QStringLiteral("x") + odd}) {
    const auto event = InspectorEvent::of(KZTraceRecord{KZTraceLevel::Info, {}, QString(5000, u'n'), text});
    EXPECT_LE(event.content.size() * 2, InspectorEvent::mostBytes);
    EXPECT_TRUE(event.content.endsWith(QStringLiteral("… (cut; %1 characters in all)").arg(text.size())));
    EXPECT_LT(event.title.size(), 500);
    EXPECT_TRUE(event.content.isValidUtf16());
  }
}

TEST(InspectorEvent, WhatIsNestedDeeplyIsShownAsItIs) {
  QVariant deep = QVariantList(10'000, 1);
  for (int depth = 0; depth < 40; ++depth) deep = QVariantList{deep};
  const auto event =
      InspectorEvent::of(CommandToHost{KZCommand::KZCmdPreferenceChanged, Dictionary{{"a", deep}}});
  EXPECT_EQ(event.wholeContent(), event.content);
}

QString difference(const QVariant& before, const QVariant& after, const char* key = "key") {
  return InspectorEvent::of(StoreChange{key, before, after}).content.replace('\n', '|');
}

TEST(InspectorEvent, AStoreWriteShowsWhatWasAddedRemovedAndChangedAndNothingElse) {
  const Dictionary account{{"email", "ada@example.com"}, {"days", 7}};
  const Dictionary edited{{"email", "ada@example.com"}, {"days", 14}, {"room", true}};
  struct Row {
    const char* what;
    QVariant before;
    QVariant after;
    const char* lines;
  };
  const Row rows[] = {
      {"new", {}, "a", "+ key: \"a\""},
      {"removed", 5, {}, "- key: 5"},
      {"nested", account, edited, "- key.days: 7|+ key.days: 14|+ key.room: true"},
      {"emptied", account, Dictionary(), "- key.days: 7|- key.email: \"ada@example.com\"|+ key: {}"},
      {"lists", QVariantList{1, account}, QVariantList{1, edited, 3},
       "- key[1].days: 7|+ key[1].days: 14|+ key[1].room: true|+ key[2]: 3"},
      {"bytes", QByteArray("a"), QByteArray("b"), "- key: {\"$data\":\"YQ==\"}|+ key: {\"$data\":\"Yg==\"}"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(difference(row.before, row.after).toStdString(), row.lines) << row.what;
}

TEST(InspectorEvent, AStoreWriteShowsNoSecret) {
  const auto holder = [](const char* secret, int days) {
    return Dictionary{{"accessToken", QVariantList{Dictionary{{"value", secret}}}},
                      {"json", QStringLiteral(R"({"password":"%1","user":"ada"})").arg(secret)},
                      {"list", QVariantList{Dictionary{{"password", secret}, {"days", days}}}}};
  };
  EXPECT_EQ(difference(holder("0ld", 7), holder("n3w", 8)).toStdString(),
            "- key.list[0].days: 7|+ key.list[0].days: 8");
  EXPECT_EQ(difference(Dictionary{{"a", "0ld"}}, Dictionary{{"a", "n3w"}}, "password").toStdString(),
            "Only masked values differ.");
}

TEST(InspectorLog, IsBoundedByNumberAndByBytes) {
  InspectorLog log;
  for (const qsizetype length : {qsizetype{10}, qsizetype{20'000}}) {
    const QString text(length, u'x');
    for (int number = 0; number < 25'000; ++number) {
      traceTo(log, QString::number(number), text);
      if (number % 100 == 0) turn();
    }
    turn();
    qsizetype bytes = 0;
    for (const auto& event : log.events()) bytes += event->bytes();
    EXPECT_LE(qsizetype(log.events().size()), InspectorLog::mostEvents);
    EXPECT_LE(bytes, InspectorLog::mostBytes);
    EXPECT_GT(
        qMax(double(log.events().size()) / InspectorLog::mostEvents, double(bytes) / InspectorLog::mostBytes),
        0.95);
    EXPECT_EQ(log.events().back()->title, "24999");
  }
}

TEST(InspectorLog, TakesEventsFromManyThreadsInTheirOrder) {
  InspectorLog log;
  std::vector<std::unique_ptr<QThread>> workers;
  for (int worker = 0; worker < 4; ++worker) {
    workers.emplace_back(QThread::create([&log, worker] {
      for (int number = 0; number < 500; ++number)
        traceTo(log, QString::number(worker), QString::number(number));
    }));
    workers.back()->start();
  }
  for (const auto& worker : workers) worker->wait();
  turn();
  ASSERT_EQ(log.events().size(), 2000U);
  int next[4] = {};
  for (const auto& event : log.events()) {
    EXPECT_EQ(event->content.toInt(), next[event->title.toInt()]++);
  }
}

TEST(InspectorFilter, ShowsWhatIsWanted) {
  InspectorLog log;
  log.record(CommandToPlugin{KZCommand::KZCmdShowPreference});
  log.record(StoreChange{"siteName", "old.example", "new.example"});
  log.record(NotificationToPlugin{KZNotify::KZNotifyCheckForUpdatesDone, Dictionary{{"word", "Updates"}}});
  traceTo(log, "A::b", QString(40'000, u'x') + "in the middle");
  turn();
  struct Row {
    QList<Group> hidden;
    const char* text;
    QStringList titles;
  };
  const Row rows[] = {
      {{}, "", {"2 KZCmdShowPreference", "siteName", "8 KZNotifyCheckForUpdatesDone", "A::b"}},
      {{Group::Traces, Group::Commands}, "", {"siteName", "8 KZNotifyCheckForUpdatesDone"}},
      {{}, "UPDATES", {"8 KZNotifyCheckForUpdatesDone"}},
      {{}, "\"word\"", {"8 KZNotifyCheckForUpdatesDone"}},
      {{}, "2 kz", {"2 KZCmdShowPreference"}},
      {{}, "old.example", {"siteName"}},
      {{Group::Store}, "old.example", {}},
      {{}, ".*", {}},
  };
  for (const Row& row : rows) {
    InspectorFilter filter(&log);
    for (const Group group : row.hidden) filter.setShown(group, false);
    filter.setText(row.text);
    QStringList titles;
    for (int at = 0; at < filter.rowCount(); ++at) titles.append(filter.eventAt(at)->title);
    EXPECT_EQ(titles, row.titles) << row.text;
  }
}

TEST(InspectorLog, ALineIsOneLineOfFourColumns) {
  InspectorLog log;
  traceTo(log, "A::b", QString::fromUtf8("one\ntwo\r\tthree\u2028four"));
  log.record(WarningShown{"a\tb\nc", "d"});
  log.record(KeychainChange{"zoe", KeychainChange::Kind::Removed});
  turn();
  const char* ends[] = {"\tTrace\tA::b\tone two  three four", "\tWarning\ta b c\td",
                        "\tKeychain\tzoe\tremoved"};
  for (int row = 0; row < 3; ++row) {
    const QString line = InspectorLog::lineOf(*log.eventAt(row));
    EXPECT_TRUE(line.endsWith(ends[row])) << qPrintable(line);
  }
}

TEST(InspectorLog, APauseKeepsItsRowsAndCountsWhatComes) {
  InspectorLog log;
  traceTo(log, "read");
  turn();
  log.setFlow(InspectorLog::Flow::Paused);
  QSignalSpy waiting(&log, &InspectorLog::waiting);
  for (int number = 0; number < InspectorLog::mostEvents + 10; ++number) {
    traceTo(log, QString::number(number));
    if (number == 4) turn();
  }
  turn();
  EXPECT_EQ(waiting.takeFirst().at(0).value<qsizetype>(), 5);
  const auto count = waiting.takeFirst().at(0).value<qsizetype>();
  EXPECT_LE(count, InspectorLog::mostEvents);
  ASSERT_EQ(log.rowCount(), 1);
  EXPECT_EQ(log.eventAt(0)->title, "read");
  log.setFlow(InspectorLog::Flow::Live);
  EXPECT_EQ(log.rowCount(), count);
  EXPECT_EQ(log.eventAt(0)->title.toInt(), InspectorLog::mostEvents + 10 - count);
  log.clear();
  EXPECT_EQ(log.rowCount(), 0);
  traceTo(log, "next");
  turn();
  EXPECT_EQ(log.rowCount(), 1);
}

}  // namespace
