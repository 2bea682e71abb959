#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <algorithm>

#include "companion/inspector/InspectorView.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

constexpr auto kSecret = "s3cret";

class InspectorViewTest : public testing::Test {
 protected:
  InspectorViewTest() : m_view(&m_log) {
    m_view.resize(900, 400);
    m_view.show();
  }

  void tell(const PluginEvent& event) { m_log.record(event); }

  QAbstractButton* button(const QString& begin) {
    const auto all = m_view.findChildren<QAbstractButton*>();
    const auto at = std::ranges::find_if(all, [&](auto* one) { return one->text().startsWith(begin); });
    return at == all.end() ? nullptr : *at;
  }

  void press(const QString& begin) {
    QCoreApplication::processEvents();
    ASSERT_NE(button(begin), nullptr) << qPrintable(begin);
    QTest::mouseClick(button(begin), Qt::LeftButton, {}, QPoint(8, button(begin)->height() / 2));
  }

  QTableView* table() { return m_view.findChild<QTableView*>(); }
  QPlainTextEdit* details() { return m_view.findChild<QPlainTextEdit*>(); }
  QString shownDetails(int row) {
    table()->setCurrentIndex(table()->model()->index(row, 0));
    return details()->toPlainText();
  }

  InspectorLog m_log;
  InspectorView m_view;
};

TEST_F(InspectorViewTest, SecretsAreNowhere) {
  const QString json = R"({"access_token":"s3cret","user":"ada"})";
  const Dictionary content{{QRT_CredentialContent, kSecret}, {"data", json}};
  const auto sinkCredential = KZCommand::KZCmdSinkOutlookAccountCredential;
  tell(CommandToPlugin{sinkCredential, content});
  tell(CommandToHost{sinkCredential, content});
  tell(NotificationToPlugin{KZNotify::KZNotifyGetPreferenceDone, content});
  tell(CredentialRequest{"name", content});
  tell(CredentialResponse{"name", content});
  tell(CommandToHost{KZCommand::KZCmdWriteTelemetry, content});
  tell(AddressRequest{"https://example.com/?token=s3cret"});
  tell(WarningShown{"Failed", "at https://example.com/?code=s3cret"});
  m_log.record(StoreChange{"preferenceInfo", content, {}});
  press("Copy");
  const QString copied = QGuiApplication::clipboard()->text();
  EXPECT_EQ(copied.count(u'\n'), 9);
  EXPECT_FALSE(copied.contains(kSecret)) << qPrintable(copied);
  for (int row = 0; row < table()->model()->rowCount(); ++row) {
    EXPECT_FALSE(shownDetails(row).contains(kSecret)) << qPrintable(shownDetails(row));
  }
  const QTemporaryDir folder;
  QFile file(folder.filePath("events.jsonl"));
  m_view.exportTo(file.fileName(), InspectorView::Scope::All);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_FALSE(file.readAll().contains(kSecret));
}

TEST_F(InspectorViewTest, AnArrowKeyShowsTheWholeContent) {
  tell(CommandToHost{static_cast<KZCommand>(4), Dictionary{{"a", Dictionary{{"b", 1}}}}});
  m_log.record(StoreChange{"siteName", "old", "new"});
  QCoreApplication::processEvents();
  EXPECT_EQ(shownDetails(0).toStdString(), "{\n    \"a\": {\n        \"b\": 1\n    }\n}");
  QTest::keyClick(table(), Qt::Key_Down);
  EXPECT_EQ(details()->toPlainText().toStdString(), "- siteName: \"old\"\n+ siteName: \"new\"");
  const auto colorOfLine = [this](int line) {
    const auto formats = details()->document()->findBlockByNumber(line).layout()->formats();
    return formats.isEmpty() ? QColor() : formats.first().format.foreground().color();
  };
  EXPECT_TRUE(colorOfLine(0).isValid());
  EXPECT_NE(colorOfLine(0), colorOfLine(1));
  press("Clear");
  EXPECT_TRUE(details()->toPlainText().isEmpty());
}

TEST_F(InspectorViewTest, TheBoxesAndTheFieldFilter) {
  tell(CommandToPlugin{static_cast<KZCommand>(2)});
  tell(KZTraceRecord{KZTraceLevel::Info, {}, "A::b", "hello"});
  QCoreApplication::processEvents();
  EXPECT_EQ(table()->model()->rowCount(), 1) << "traces are off at first";
  press("Traces");
  EXPECT_EQ(table()->model()->rowCount(), 2);
  press("Commands");
  EXPECT_EQ(table()->model()->rowCount(), 1);
  QTest::keyClicks(m_view.findChild<QLineEdit*>(), "nobody");
  EXPECT_EQ(table()->model()->rowCount(), 0);
}

TEST_F(InspectorViewTest, APauseKeepsWhatIsRead) {
  tell(CommandToPlugin{static_cast<KZCommand>(2)});
  QCoreApplication::processEvents();
  const QString read = shownDetails(0);
  press("Pause");
  tell(CommandToPlugin{static_cast<KZCommand>(3)});
  QCoreApplication::processEvents();
  EXPECT_EQ(table()->model()->rowCount(), 1);
  EXPECT_EQ(button("Continue")->text().toStdString(), "Continue (1 new)");
  press("Continue");
  EXPECT_EQ(table()->model()->rowCount(), 2);
  EXPECT_EQ(table()->currentIndex().row(), 0);
  EXPECT_EQ(details()->toPlainText(), read);
}

TEST_F(InspectorViewTest, TheListFollowsItsEndUnlessScrolledAway) {
  const auto add = [this](int count) {
    for (int at = 0; at < count; ++at) tell(CommandToPlugin{static_cast<KZCommand>(2)});
    for (int times = 0; times < 3; ++times) QCoreApplication::processEvents();
  };
  const auto lastVisible = [this] { return table()->rowAt(table()->viewport()->height() - 2); };
  add(200);
  EXPECT_GE(lastVisible(), 198);
  m_view.hide();
  add(200);
  m_view.show();
  add(0);
  EXPECT_GE(lastVisible(), 398);
  table()->scrollToTop();
  m_view.hide();
  add(200);
  m_view.show();
  add(0);
  EXPECT_EQ(table()->rowAt(2), 0);
}

TEST_F(InspectorViewTest, AListThatIsFilledAlreadyOpensAtItsEnd) {
  for (int at = 0; at < 200; ++at) tell(CommandToPlugin{static_cast<KZCommand>(2)});
  QCoreApplication::processEvents();
  InspectorView late(&m_log);
  late.resize(900, 400);
  late.show();
  for (int times = 0; times < 3; ++times) QCoreApplication::processEvents();
  const auto* list = late.findChild<QTableView*>();
  EXPECT_GE(list->rowAt(list->viewport()->height() - 2), 198);
}

TEST_F(InspectorViewTest, AnExportReadsBack) {
  tell(CommandToHost{static_cast<KZCommand>(4), Dictionary{{"on", true}}});
  tell(KZTraceRecord{KZTraceLevel::Error, {}, "A::b", "{\"a\":1}"});
  m_log.record(StoreChange{"siteName", {}, "new"});
  QCoreApplication::processEvents();
  const QTemporaryDir folder;
  const auto lines = [&](InspectorView::Scope scope) {
    QFile file(folder.filePath("events.jsonl"));
    m_view.exportTo(file.fileName(), scope);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(int(file.permissions()) & 0x0077, 0);
    QList<QJsonObject> objects;
    while (!file.atEnd()) objects.append(QJsonDocument::fromJson(file.readLine()).object());
    return objects;
  };
  EXPECT_EQ(lines(InspectorView::Scope::Shown).size(), 2);
  const QList<QJsonObject> all = lines(InspectorView::Scope::All);
  ASSERT_EQ(all.size(), 3);
  EXPECT_TRUE(QDateTime::fromString(all[0]["time"].toString(), Qt::ISODateWithMs).isValid());
  EXPECT_EQ(all[0]["number"].toInt(), 4);
  EXPECT_EQ(all[0]["content"].toObject()["on"].toBool(), true);
  EXPECT_EQ(all[1]["level"].toString().toStdString(), "error");
  EXPECT_EQ(all[1]["text"].toString().toStdString(), "{\"a\":1}");
  EXPECT_EQ(all[2]["difference"].toArray().at(0).toString().toStdString(), "+ siteName: \"new\"");
}

TEST_F(InspectorViewTest, AnExportThatFailsIsTold) {
  QSignalSpy noticed(&m_view, &InspectorView::noticed);
  m_view.exportTo("/nowhere/at/all/events.jsonl", InspectorView::Scope::All);
  ASSERT_EQ(noticed.size(), 1);
  EXPECT_TRUE(noticed.at(0).at(0).toString().contains("could not be written"));
}

TEST_F(InspectorViewTest, WhatIsReadStaysWhenItsRowGoes) {
  const auto add = [this](int count) {
    for (int at = 0; at < count; ++at) tell(CommandToPlugin{static_cast<KZCommand>(3)});
    for (int times = 0; times < 3; ++times) QCoreApplication::processEvents();
  };
  tell(CommandToPlugin{static_cast<KZCommand>(2), Dictionary{{"a", 1}}});
  add(int(InspectorLog::mostEvents) - 1);
  const QString read = shownDetails(0);
  table()->scrollTo(table()->model()->index(5000, 0), QAbstractItemView::PositionAtTop);
  const InspectorLog::Event first = m_log.eventAt(table()->rowAt(2));
  add(1);
  EXPECT_LT(table()->model()->rowCount(), InspectorLog::mostEvents) << "the oldest are gone";
  EXPECT_EQ(details()->toPlainText(), read);
  EXPECT_FALSE(table()->currentIndex().isValid());
  EXPECT_TRUE(table()->selectionModel()->selectedRows().isEmpty());
  EXPECT_EQ(m_log.eventAt(table()->rowAt(2)), first);
}

// Generous bounds, for what they would catch is time that grows with the list.
TEST_F(InspectorViewTest, ManyEventsCostLittle) {
  constexpr int kEvents = 30'000;
  QElapsedTimer timer;
  timer.start();
  for (int number = 0; number < kEvents; ++number) {
    tell(CommandToHost{static_cast<KZCommand>(4), Dictionary{{"number", number}}});
    if (number % 240 == 0) QCoreApplication::processEvents();
  }
  QCoreApplication::processEvents();
  const double microseconds = double(timer.nsecsElapsed()) / 1000 / kEvents;
  RecordProperty("microseconds_per_event", std::to_string(microseconds));
  EXPECT_LT(microseconds, 500);
  EXPECT_LE(table()->model()->rowCount(), InspectorLog::mostEvents);
}

}  // namespace
