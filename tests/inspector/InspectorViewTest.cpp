#include <gtest/gtest.h>

#include <QCheckBox>
#include <QClipboard>
#include <QDateTime>
#include <QFile>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
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

  void add(int count, const PluginEvent& event = CommandToPlugin{KZCommand::KZCmdShowPreference}) {
    for (int at = 0; at < count; ++at) m_log.record(event);
    // What is inserted is laid out, and then followed.
    for (int times = 0; times < 3; ++times) QCoreApplication::processEvents();
  }

  QAbstractButton* button(const QString& begin) {
    const auto all = m_view.findChildren<QAbstractButton*>();
    const auto at =
        std::ranges::find_if(all, [&](auto* one) { return one->text().remove(u'&').startsWith(begin); });
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
  m_log.record(CommandToPlugin{sinkCredential, content});
  m_log.record(CommandToHost{sinkCredential, content});
  m_log.record(NotificationToPlugin{KZNotify::KZNotifyGetPreferenceDone, content});
  m_log.record(CredentialRequest{"name", content});
  m_log.record(CredentialResponse{"name", content});
  m_log.record(CommandToHost{KZCommand::KZCmdWriteTelemetry, content});
  m_log.record(AddressRequest{"https://example.com/?token=s3cret"});
  m_log.record(WarningShown{"Failed", "at https://example.com/?code=s3cret"});
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
  m_view.exportTo(file.fileName());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_FALSE(file.readAll().contains(kSecret));
}

TEST_F(InspectorViewTest, AnArrowKeyShowsTheWholeContent) {
  m_log.record(CommandToHost{static_cast<KZCommand>(4), Dictionary{{"a", Dictionary{{"b", 1}}}}});
  m_log.record(StoreChange{"siteName", "old", "new"});
  QCoreApplication::processEvents();
  EXPECT_EQ(shownDetails(0).toStdString(),
            "4 KZCmdUpdateGeneralSetting\n\n{\n    \"a\": {\n        \"b\": 1\n    }\n}");
  QTest::keyClick(table(), Qt::Key_Down);
  EXPECT_EQ(details()->toPlainText().toStdString(), "siteName\n\n- siteName: \"old\"\n+ siteName: \"new\"");
  press("Clear");
  EXPECT_TRUE(details()->toPlainText().isEmpty());
}

TEST_F(InspectorViewTest, APauseKeepsWhatIsRead) {
  m_log.record(CommandToPlugin{static_cast<KZCommand>(2)});
  QCoreApplication::processEvents();
  const QString read = shownDetails(0);
  press("Pause");
  m_log.record(CommandToPlugin{static_cast<KZCommand>(3)});
  QCoreApplication::processEvents();
  EXPECT_EQ(table()->model()->rowCount(), 1);
  EXPECT_EQ(button("Continue")->text(), "Co&ntinue (1 new)");
  press("Continue");
  EXPECT_EQ(table()->model()->rowCount(), 2);
  EXPECT_EQ(table()->currentIndex().row(), 0);
  EXPECT_EQ(details()->toPlainText(), read);
}

TEST_F(InspectorViewTest, TheListFollowsItsEndUnlessScrolledAway) {
  const auto lastVisible = [this] { return table()->rowAt(table()->viewport()->height() - 2); };
  add(200);
  EXPECT_GE(lastVisible(), 198);
  InspectorView late(&m_log);
  late.resize(900, 400);
  late.show();
  add(0);
  const auto* list = late.findChild<QTableView*>();
  EXPECT_GE(list->rowAt(list->viewport()->height() - 2), 198);
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

TEST_F(InspectorViewTest, AnExportHoldsWhatIsShown) {
  QSignalSpy noticed(&m_view, &InspectorView::message);
  m_view.exportTo("/nowhere/at/all/events.jsonl");
  EXPECT_TRUE(noticed.value(0).value(0).toString().contains("could not be written"));
  m_log.record(CommandToHost{static_cast<KZCommand>(4), Dictionary{{"on", true}}});
  m_log.record(KZTraceRecord{KZTraceLevel::Error, {}, "A::b", "hello"});
  m_log.record(StoreChange{"siteName", {}, "new"});
  QCoreApplication::processEvents();
  const QTemporaryDir folder;
  const auto exported = [&] {
    QFile file(folder.filePath("events.jsonl"));
    m_view.exportTo(file.fileName());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(int(file.permissions()) & 0x0077, 0);
    QList<QJsonObject> objects;
    while (!file.atEnd()) objects.append(QJsonDocument::fromJson(file.readLine()).object());
    return objects;
  };
  EXPECT_EQ(exported().size(), 2);
  press("Traces");
  const QList<QJsonObject> all = exported();
  ASSERT_EQ(all.size(), 3);
  EXPECT_TRUE(QDateTime::fromString(all[0]["time"].toString(), Qt::ISODateWithMs).isValid());
  EXPECT_EQ(all[0]["name"].toString().toStdString(), "4 KZCmdUpdateGeneralSetting");
  EXPECT_EQ(all[0]["content"].toObject()["on"].toBool(), true);
  EXPECT_EQ(all[1]["kind"].toString().toStdString(), "Trace (error)");
  EXPECT_EQ(all[1]["content"].toString().toStdString(), "hello");
  EXPECT_EQ(all[2]["content"].toString().toStdString(), "+ siteName: \"new\"");
  QTest::keyClicks(m_view.findChild<QLineEdit*>(), "hello");
  EXPECT_EQ(exported().size(), 1);
}

TEST_F(InspectorViewTest, WhatIsReadStaysWhenItsRowGoes) {
  m_log.record(CommandToPlugin{static_cast<KZCommand>(2), Dictionary{{"a", 1}}});
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

TEST_F(InspectorViewTest, TabBeginsAtTheNewestEventThatIsSeen) {
  m_view.activateWindow();
  add(60);
  table()->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(table()->currentIndex().row(), 59);
  table()->clearFocus();
  table()->selectionModel()->clearCurrentIndex();
  table()->scrollToTop();
  table()->setFocus(Qt::TabFocusReason);
  EXPECT_GT(table()->currentIndex().row(), 0);
  EXPECT_LT(table()->currentIndex().row(), 30);
}

}  // namespace
