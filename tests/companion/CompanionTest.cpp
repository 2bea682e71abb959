#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include "companion/app/DemoUser.h"
#include "companion/inspector/InspectorLog.h"
#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

QStringList namesIn(const InspectorLog& log, const QString& kind) {
  QStringList names;
  for (const auto& event : log.events()) {
    if (event->kind == kind) names.append(event->title());
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
  companion.start(COMPANION, {"--plugin", FAKE_PLUGIN, "--out", folder.path()});
  ASSERT_TRUE(companion.waitForFinished(60'000));
  EXPECT_EQ(companion.exitCode(), 0) << companion.readAllStandardError().toStdString();
  QStringList lines = QString::fromUtf8(companion.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
  EXPECT_TRUE(lines.takeFirst().contains("no display"));
  EXPECT_EQ(lines.size(), 11);
  for (const QString& path : lines) EXPECT_FALSE(QImage(path).isNull()) << qPrintable(path);
}

}  // namespace
