#include <gtest/gtest.h>

#include <QAbstractButton>
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
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

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

TEST(Companion, NoLetterOfAltMeansTwoThings) {
  for (const char* language : {"en", "de", "es", "fr", "ja", "zh_CN"}) {
    QLocale::setDefault(QLocale(language));
    Companion companion({});
    ASSERT_TRUE(companion.loadPlugin(FAKE_PLUGIN));
    companion.window()->show();
    auto* tabs = companion.window()->findChild<QTabBar*>();
    for (int page = 0; page < tabs->count(); ++page) {
      tabs->setCurrentIndex(page);
      QStringList letters = mnemonicsOf(*companion.window(), *tabs);
      EXPECT_GE(letters.size(), 12);
      letters.sort();
      EXPECT_EQ(QStringList(letters).removeDuplicates(), 0) << language << letters.join("").toStdString();
    }
  }
  QLocale::setDefault(QLocale::c());
}

}  // namespace
