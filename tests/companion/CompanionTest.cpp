#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include "companion/app/DemoUser.h"
#include "companion/inspector/InspectorLog.h"
#include "companion/runtime/Border.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

QStringList namesIn(const InspectorLog& log, InspectorEvent::Kind kind) {
  QStringList names;
  for (const auto& event : log.events()) {
    if (event->kind == kind) names.append(event->title());
  }
  return names;
}

TEST(Border, TellsWhatCrossesAlsoFromOtherThreads) {
  Border border([](const QUrl&) { return true; });
  InspectorLog log;
  const Border::Token logging =
      border.addObserver([&log](const Crossing& crossing) { log.record(InspectorEvent::of(crossing)); });
  ASSERT_TRUE(border.loadPlugin(FAKE_PLUGIN));
  border.triggerCommand(9, Dictionary{{"a", 1}});
  border.triggerCommand(28);
  const std::unique_ptr<QThread> worker(QThread::create([] {
    KZNotificationCenter::defaultCenter().post({"HTTPAuthenticationDatasource", nullptr, {}});
  }));
  QSignalSpy sent(&border, &Border::commandSent);
  worker->start();
  EXPECT_TRUE(sent.wait(2000));
  worker->wait();
  QCoreApplication::processEvents();
  EXPECT_EQ(namesIn(log, InspectorEvent::Kind::Trace), QStringList{"FakeCore::handle"});
  EXPECT_EQ(namesIn(log, InspectorEvent::Kind::CommandToHost), QStringList{"29 KZCmdExchOnlineTokenGot"});
  EXPECT_EQ(namesIn(log, InspectorEvent::Kind::Answer), QStringList{"HTTPAuthenticationDatasource"});
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
  companion.start(COMPANION, {"--plugin", FAKE_PLUGIN, "--out", folder.path()});
  ASSERT_TRUE(companion.waitForFinished(60'000));
  EXPECT_EQ(companion.exitCode(), 0) << companion.readAllStandardError().toStdString();
  QStringList lines = QString::fromUtf8(companion.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
  EXPECT_TRUE(lines.takeFirst().contains("no display"));
  EXPECT_EQ(lines.size(), 11);
  for (const QString& path : lines) EXPECT_FALSE(QImage(path).isNull()) << qPrintable(path);
}

}  // namespace
