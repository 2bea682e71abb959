#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLocale>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include "companion/app/CompanionExchange.h"
#include "companion/app/Sandbox.h"
#include "companion/inspector/InspectorLog.h"
#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZFoundation/KZNotificationCenter.h"

namespace {

QMessageBox* openQuestion() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* box = qobject_cast<QMessageBox*>(window);
    if (box && box->isVisible()) return box;
  }
  return nullptr;
}

// A companion with a fake plug-in, which sends back every command that it does not know, so that a test can
// send the plug-in's commands. An authenticator replaces the plug-in's.
class CompanionExchangeTest : public testing::Test {
 protected:
  void SetUp() override {
    QObject::connect(&exchange, &CompanionExchange::message, &exchange,
                     [this](const QString& text) { notices.append(text); });
    QObject::connect(&sandbox, &Sandbox::ready, &network, &ServiceNetwork::useSandbox);
    QObject::connect(&sandbox, &Sandbox::failed, &network, &ServiceNetwork::loseSandbox);
  }

  void loadFakePlugin() {
    ASSERT_TRUE(host.load(FAKE_PLUGIN));
    // Added after the fake plug-in's observer, whose credential it replaces.
    authenticator = KZNotificationCenter::defaultCenter().addObserver(
        "HTTPAuthenticationRequired", [this](const KZNotification& challenge) { onChallenge(challenge); });
  }

  void startSandbox() {
    if (QStandardPaths::findExecutable("openssl").isEmpty()) GTEST_SKIP() << "openssl is missing";
    QSignalSpy ready(&sandbox, &Sandbox::ready);
    sandbox.start(KZ_SANDBOX);
    ASSERT_TRUE(ready.wait(20'000));
  }

  void onChallenge(const KZNotification& challenge) {
    if (textValue(challenge.userInfo, "ShowWarningMsg") == "true")
      return host.trigger(KZCommand::KZCmdExchDiscoverAuthFailure);
    KZNotificationCenter::defaultCenter().post(
        {"HTTPAuthenticationDatasource", nullptr, {{"Username", "CORP\\onprem"}, {"Password", password}}});
  }

  void detect(const QString& email) {
    host.trigger(KZCommand::KZCmdApplyOutlookAccount, Dictionary{{QRT_ExchangeDiscover_Email, email}});
  }

  void sinkPassword() {
    host.trigger(KZCommand::KZCmdSinkOutlookAccountCredential,
                 Dictionary{{QRT_CredentialType, QRT_CredentialTypeUsernamePassword},
                            {QRT_CredentialContent, "CORP\\onprem:" + password}});
  }

  QStringList notifications() {
    QStringList shown;
    for (const auto& event : log.events()) {
      if (event->kind != "Notification") continue;
      shown.append(event->title + u' ' + event->content);
    }
    return shown;
  }

  // Waits for that many notifications and returns the latest; empty when they do not come.
  QString notificationNumber(qsizetype count) {
    const bool hasCome = QTest::qWaitFor([&] { return notifications().size() >= count; }, 8000);
    return hasCome ? notifications().at(count - 1) : QString();
  }

  PluginHost host;
  InspectorLog log;
  PluginHost::Token logging = host.addObserver([this](const PluginEvent& event, PluginHost::Phase phase) {
    if (phase == PluginHost::Phase::Begin) log.record(event);
  });
  ServiceNetwork network{NetworkReach::Sandbox};
  CompanionExchange exchange{&host, &network};
  Sandbox sandbox;
  KZNotificationCenter::Token authenticator;
  QString password = QStringLiteral("correct horse");
  QStringList notices;
};

TEST_F(CompanionExchangeTest, AWrongPasswordIsRefusedAndTheRightOneIsFoundWith) {
  ASSERT_NO_FATAL_FAILURE(loadFakePlugin());
  ASSERT_NO_FATAL_FAILURE(startSandbox());
  if (IsSkipped()) return;
  password = "wrong";
  detect("onprem@corp.sandbox.example");
  EXPECT_TRUE(notificationNumber(1).startsWith("26 "));
  sinkPassword();
  EXPECT_TRUE(QTest::qWaitFor([this] { return notices.join(u' ').contains("Detect again"); }, 8000));
  EXPECT_EQ(notifications().size(), 1);

  password = "correct horse";
  detect("onprem@corp.sandbox.example");
  EXPECT_TRUE(notificationNumber(2).startsWith("26 "));
  sinkPassword();
  const QString found = notificationNumber(3);
  EXPECT_TRUE(found.startsWith("15 ")) << qPrintable(found);
  EXPECT_TRUE(found.contains("CORP") && found.contains("https://")) << qPrintable(found);
}

TEST_F(CompanionExchangeTest, ACancelledSearchAnswersNothingAndClosesItsQuestion) {
  ASSERT_NO_FATAL_FAILURE(loadFakePlugin());
  ASSERT_NO_FATAL_FAILURE(startSandbox());
  if (IsSkipped()) return;
  detect("hosted@hosted.sandbox.example");
  ASSERT_TRUE(QTest::qWaitFor([] { return openQuestion() != nullptr; }, 8000));
  EXPECT_FALSE(openQuestion()->isModal());
  host.trigger(KZCommand::KZCmdCancelApplyOutlookAccount);
  EXPECT_TRUE(QTest::qWaitFor([] { return openQuestion() == nullptr; }, 2000));
  QTest::qWait(300);
  EXPECT_TRUE(notifications().isEmpty()) << qPrintable(notifications().join(u'\n'));
}

TEST_F(CompanionExchangeTest, TheUserDecidesWhereTheSearchGoesOn) {
  ASSERT_NO_FATAL_FAILURE(loadFakePlugin());
  ASSERT_NO_FATAL_FAILURE(startSandbox());
  if (IsSkipped()) return;
  for (const auto& [button, number] : {std::pair("Do not allow", "15 "), std::pair("Allow", "26 ")}) {
    const qsizetype before = notifications().size();
    detect("hosted@hosted.sandbox.example");
    ASSERT_TRUE(QTest::qWaitFor([] { return openQuestion() != nullptr; }, 8000)) << button;
    for (QAbstractButton* choice : openQuestion()->buttons()) {
      if (choice->text().remove(u'&') == button) QTest::mouseClick(choice, Qt::LeftButton);
    }
    const QString answer = notificationNumber(before + 1);
    EXPECT_TRUE(answer.startsWith(number)) << button << ": " << qPrintable(answer);
  }
}

TEST_F(CompanionExchangeTest, ReportsWhyItDoesNotSearch) {
  ASSERT_NO_FATAL_FAILURE(loadFakePlugin());
  detect("onprem@corp.sandbox.example");
  EXPECT_TRUE(notifications().isEmpty()) << "answered while the command was still under way";
  EXPECT_TRUE(notificationNumber(1).contains("still starting"));
  sandbox.start({});
  detect("onprem@corp.sandbox.example");
  EXPECT_TRUE(notificationNumber(2).contains("kz-sandbox is not beside this program. Start"));
  network.useSandbox({.domain = "sandbox.example"});
  detect("ada@example.com");
  EXPECT_TRUE(notificationNumber(3).contains("outside the sandbox"));
  QLocale::setDefault(QLocale(QLocale::German));
  detect("ada@example.com");
  EXPECT_TRUE(notificationNumber(4).contains("liegt außerhalb der Sandbox"));
  QLocale::setDefault(QLocale::c());
}

TEST_F(CompanionExchangeTest, ASandboxThatDiesEndsTheSearch) {
  ASSERT_NO_FATAL_FAILURE(loadFakePlugin());
  ASSERT_NO_FATAL_FAILURE(startSandbox());
  if (IsSkipped()) return;
  detect("onprem@corp.sandbox.example");
  ASSERT_TRUE(notificationNumber(1).startsWith("26 "));
  QSignalSpy failed(&sandbox, &Sandbox::failed);
  QProcess::execute("kill", {"-9", QString::number(sandbox.processId())});
  ASSERT_TRUE(failed.wait(5000));
  EXPECT_TRUE(notificationNumber(2).contains("has ended"));
}

}  // namespace
