#include <gtest/gtest.h>

#include <QImage>
#include <QLineEdit>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include "companion/app/BorderLogView.h"
#include "companion/app/DemoUser.h"
#include "companion/runtime/Border.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

QStringList namesIn(const BorderLog& log, BorderEvent::Kind kind) {
  QStringList names;
  for (int row = 0; row < log.rowCount(); ++row) {
    const QModelIndex at = log.index(row, BorderLog::NameColumn);
    if (at.data(BorderLog::kindRole).toInt() == static_cast<int>(kind)) names.append(at.data().toString());
  }
  return names;
}

TEST(BorderLog, KeepsTheLatestAndCutsLongTexts) {
  BorderLog log;
  for (int number = 0; number < BorderLog::longestLog + 5; ++number) {
    log.append({BorderEvent::Kind::Trace, QString::number(number), {}});
  }
  EXPECT_EQ(log.rowCount(), BorderLog::longestLog);
  EXPECT_EQ(log.index(0, BorderLog::NameColumn).data().toString().toStdString(), "5");
  EXPECT_LT(shownContent(Dictionary{{"a", QString(1'000'000, u'x')}}).size(), 5000);
}

TEST(BorderLog, SecretsAreNeverShownOrCopied) {
  BorderLog log;
  BorderLogView view(&log);
  const Dictionary content = {{QRT_CredentialType, QRT_CredentialTypeUsernamePassword},
                              {QRT_CredentialContent, "ada:s3cret"}};
  log.record({.kind = Crossing::Kind::CommandToHost, .number = 27, .content = content});
  EXPECT_FALSE(view.textToCopy().contains("s3cret")) << qPrintable(view.textToCopy());
  EXPECT_TRUE(view.textToCopy().contains("KZCmdSinkOutlookAccountCredential"));
}

TEST(BorderLog, CopiesWhatTheFilterLetsThrough) {
  BorderLog log;
  BorderLogView view(&log);
  log.record({.kind = Crossing::Kind::CommandToPlugin, .number = 2});
  log.record({.kind = Crossing::Kind::Notification, .number = 8, .content = Dictionary{{"word", "Updates"}}});
  view.findChild<QLineEdit*>()->setText("updates");
  EXPECT_EQ(view.textToCopy().count(u'\n'), 1) << qPrintable(view.textToCopy());
  view.findChild<QLineEdit*>()->setText("\"word\"");
  EXPECT_TRUE(view.textToCopy().contains("8 KZNotifyCheckForUpdatesDone\t{\"word\":\"Updates\"}"));
  EXPECT_EQ(view.textToCopy().count(u'\n'), 1);
}

TEST(Border, TellsWhatCrossesAlsoFromOtherThreads) {
  Border border([](const QUrl&) { return true; });
  BorderLog log;
  const Border::Token logging =
      border.addObserver([&log](const Crossing& crossing) { log.record(crossing); });
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
  EXPECT_EQ(namesIn(log, BorderEvent::Kind::Trace), QStringList{"FakeCore::handle"});
  EXPECT_EQ(namesIn(log, BorderEvent::Kind::CommandToHost), QStringList{"29 KZCmdExchOnlineTokenGot"});
  EXPECT_EQ(namesIn(log, BorderEvent::Kind::Answer), QStringList{"HTTPAuthenticationDatasource"});
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
