#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include "companion/app/Companion.h"
#include "companion/app/DemoUser.h"
#include "companion/inspector/InspectorLog.h"
#include "companion/runtime/PluginHost.h"
#include "companion/runtime/TimeText.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/kit/Input.h"

namespace {

QStringList namesIn(const InspectorLog& log, const QString& kind) {
  QStringList names;
  for (const auto& event : log.events()) {
    if (event->kind.startsWith(kind)) names.append(event->title);
  }
  return names;
}

TEST(PluginHost, ReportsEventsAlsoFromOtherThreads) {
  PluginHost host;
  InspectorLog log;
  const PluginHost::Token logging =
      host.addObserver([&log](const PluginEvent& event, PluginHost::Phase phase) {
        if (phase == PluginHost::Phase::Begin) log.record(event);
      });
  ASSERT_TRUE(host.load(FAKE_PLUGIN));
  host.trigger(KZCommand::KZCmdCheckForUpdatesAutomatically, Dictionary{{"a", 1}});
  host.trigger(KZCommand::KZCmdGetExchOnlineToken);
  const std::unique_ptr<QThread> worker(QThread::create([] {
    KZNotificationCenter::defaultCenter().post({"HTTPAuthenticationDatasource", nullptr, {}});
  }));
  int sent = 0;
  host.handle(KZCommand::KZCmdExchOnlineTokenGot, &host, [&sent](const Content&) { ++sent; });
  worker->start();
  EXPECT_TRUE(QTest::qWaitFor([&sent] { return sent == 1; }, 2000));
  worker->wait();
  QCoreApplication::processEvents();
  EXPECT_EQ(namesIn(log, "Trace"), QStringList({"load", "FakeCore::handle"}));
  EXPECT_EQ(namesIn(log, "Command to host"), QStringList{"29 KZCmdExchOnlineTokenGot"});
  EXPECT_EQ(namesIn(log, "Answer"), QStringList{"HTTPAuthenticationDatasource"});
}

TEST(DemoUser, WhatAGuestEditedSurvivesASignIn) {
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  demouser::become(demouser::Variant::Guest);
  store.setDisplayName("Grace Guest");
  demouser::become(demouser::Variant::SignedIn);
  EXPECT_EQ(store.displayName().toStdString(), "Ada Example");
  demouser::become(demouser::Variant::Guest);
  EXPECT_EQ(store.displayName().toStdString(), "Grace Guest");
  store.close();
}

TEST(TimeText, HasNoSecondsInAnyLocale) {
  const QDateTime time(QDate(2026, 3, 4), QTime(14, 5, 56));
  for (const QLocale& locale : {QLocale::c(), QLocale("de_DE"), QLocale("en_US"), QLocale("ja_JP")}) {
    QLocale::setDefault(locale);
    for (const QString& text : {shortTime(time), shortDateTime(time)}) {
      EXPECT_TRUE(text.contains(":05") && !text.contains("56")) << text.toStdString();
    }
  }
  QLocale::setDefault(QLocale::c());
}

// What a session names but the program cannot use is said, not passed over.
TEST(Companion, SaysWhyItDoesNotStart) {
  const struct {
    QStringList options;
    const char* display;
    const char* reason;
  } rows[] = {{{}, ":9999", "the display :9999 cannot be used"},
              {{"-reverse", "-style", "fusion", "--demo", "--nonsense"}, "", "Unknown option 'nonsense'."},
              {{"--demo", "--plugin", "/nowhere.so"}, ":9999", "/nowhere.so cannot be loaded"},
              {{"-platform", "offscreen", "--appearance", "pink"}, ":9999", "no appearance pink"}};
  for (const auto& row : rows) {
    QProcess companion;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(name);
    environment.insert("DISPLAY", row.display);
    companion.setProcessEnvironment(environment);
    companion.start(COMPANION, row.options);
    ASSERT_TRUE(companion.waitForFinished()) << row.reason;
    EXPECT_NE(companion.exitCode(), 0) << row.reason;
    EXPECT_EQ(companion.readAllStandardOutput(), "");
    const QByteArray complaint = companion.readAllStandardError();
    EXPECT_TRUE(complaint.contains(row.reason)) << complaint.toStdString();
  }
}

TEST(Companion, PlaysItsDemonstrationWithoutADisplay) {
  const QTemporaryDir folder;
  QProcess companion;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(name);
  companion.setProcessEnvironment(environment);
  companion.start(COMPANION, {"--plugin", PREFERENCES, "--out", folder.path()});
  ASSERT_TRUE(companion.waitForFinished(60'000));
  EXPECT_EQ(companion.exitCode(), 0) << companion.readAllStandardError().toStdString();
  QStringList lines = QString::fromUtf8(companion.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
  EXPECT_TRUE(lines.takeFirst().contains("no display"));
  EXPECT_EQ(lines.size(), 11);
  for (const QString& path : lines) EXPECT_FALSE(QImage(path).isNull()) << qPrintable(path);
}

// The letters of Alt on a page of the window, also of buttons beside the pages that are hidden now.
QStringList mnemonicsOf(const QWidget& window, const QTabBar& tabs) {
  QStringList texts;
  for (int index = 0; index < tabs.count(); ++index) texts.append(tabs.tabText(index));
  const auto* pages = window.findChild<QStackedWidget*>();
  for (const auto* button : window.findChildren<QAbstractButton*>())
    if (button->isVisible() || !pages->isAncestorOf(button)) texts.append(button->text());
  static const QRegularExpression mark("&(\\w)");
  QStringList letters;
  for (const QString& text : texts)
    if (const auto match = mark.match(text); match.hasMatch()) letters.append(match.captured(1).toUpper());
  return letters;
}

// At a large font on a small screen every button is as wide as its text and inside its row.
TEST(Companion, PagesAreWholeAndNoLetterOfAltMeansTwoThings) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPixelSize(27);
  QApplication::setFont(large);
  for (const char* language : {"en", "de", "es", "fr", "ja", "zh_CN"}) {
    QLocale::setDefault(QLocale(language));
    Companion companion({});
    ASSERT_TRUE(companion.loadPlugin(FAKE_PLUGIN));
    companion.window()->resize(780, 420);
    companion.window()->show();
    auto* tabs = companion.window()->findChild<QTabBar*>();
    for (int page = 0; page < tabs->count(); ++page) {
      tabs->setCurrentIndex(page);
      kit::settle();
      QStringList letters = mnemonicsOf(*companion.window(), *tabs);
      EXPECT_GE(letters.size(), 12);
      EXPECT_EQ(tabs->height(), tabs->sizeHint().height());
      letters.sort();
      EXPECT_EQ(QStringList(letters).removeDuplicates(), 0) << language << letters.join("").toStdString();
      for (const auto* button : companion.window()->findChildren<QAbstractButton*>()) {
        if (!button->isVisible() || button->text().isEmpty()) continue;
        EXPECT_GE(button->width(), button->sizeHint().width()) << button->text().toStdString();
        EXPECT_TRUE(button->parentWidget()->rect().contains(button->geometry()))
            << button->text().toStdString();
      }
    }
  }
  QLocale::setDefault(QLocale::c());
  QApplication::setFont(before);
}

}  // namespace
