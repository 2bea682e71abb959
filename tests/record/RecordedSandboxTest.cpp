#include <gtest/gtest.h>

#include <QLineEdit>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QUrlQuery>
#include <QWindow>

#include "companion/app/CompanionExchange.h"
#include "companion/app/DemoUser.h"
#include "companion/app/Recording.h"
#include "companion/app/Sandbox.h"
#include "companion/format/ControlFinder.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "companion/session/UserInput.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/record/PlayedRecord.h"

namespace {

QWidget* dialogOfClass(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->inherits(name)) return window;
  }
  return nullptr;
}

// A user who adds an account of the sandbox, with a browser that signs in when asked.
class RecordedSandbox : public testing::Test {
 protected:
  void SetUp() override {
    if (QStandardPaths::findExecutable("openssl").isEmpty()) GTEST_SKIP() << "openssl is missing";
    ASSERT_TRUE(KZPlistFileHandle::sharedInstance().open(m_folder.filePath("state")));
    KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
    QObject::connect(&m_sandbox, &Sandbox::ready, &m_network, &ServiceNetwork::useSandbox);
    QSignalSpy ready(&m_sandbox, &Sandbox::ready);
    m_sandbox.start(KZ_SANDBOX);
    ASSERT_TRUE(ready.wait(20'000));
    ASSERT_TRUE(m_recording.start(path()));
    ASSERT_TRUE(m_host.load(PREFERENCES));
    m_host.notify(KZNotify::KZNotifyGetPreferenceDone,
                  Dictionary{{kKZResult, kKZSuccess}, {"kz", demouser::record()}});
    m_host.trigger(KZCommand::KZCmdShowPreference);
    eventpump::settle();
    const Window& window = *findPreferencesWindow();
    ASSERT_TRUE(m_user.clickPane(window, paneItemNamed(window, "Meetings"), {}).isNull());
    QTest::qWait(400);
  }
  void TearDown() override {
    m_recording.stop();
    m_host.shutDown();
    KZPlistFileHandle::sharedInstance().close();
  }

  // Opened addresses are only kept: the user goes there when the test says so.
  bool open(const QUrl& url) {
    m_opened = url;
    return true;
  }

  // Answers where the browser ends up.
  QUrl signInWithBrowser() {
    QUrlQuery form(m_opened);
    form.addQueryItem("user", "online@cloud.sandbox.example");
    form.addQueryItem("answer", "yes");
    QNetworkRequest request(m_opened);
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
    QNetworkAccessManager browser;
    browser.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply* answer = browser.post(request, form.toString(QUrl::FullyEncoded).toLatin1());
    EXPECT_TRUE(QTest::qWaitFor([&] { return answer->isFinished(); }, 8000));
    const QUrl callback = answer->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    QNetworkReply* page = browser.get(QNetworkRequest(callback));
    EXPECT_TRUE(QTest::qWaitFor([&] { return page->isFinished(); }, 8000));
    return callback;
  }

  static QWidget* control(const char* name) {
    return ControlFinder(contentViewOf(*findPreferencesWindow())).find(name).control;
  }
  static bool awaitUsable(const char* name) {
    return QTest::qWaitFor(
        [name] {
          const QWidget* found = control(name);
          return found && found->isVisible() && found->isEnabled();
        },
        8000);
  }
  void click(const char* name) {
    ASSERT_TRUE(awaitUsable(name)) << name;
    EXPECT_TRUE(m_user.click(control(name), {}).isNull()) << name;
    eventpump::settle();
  }
  void type(const char* name, const char* text) {
    ASSERT_TRUE(awaitUsable(name)) << name;
    EXPECT_TRUE(m_user.type(qobject_cast<QLineEdit*>(control(name)), text).isNull()) << name;
  }
  void detect(const char* email) {
    click("m_outlookRadioBtn");
    type("m_emailInputTxt", email);
    click("m_detectBtn");
  }

  QString path() const { return m_folder.filePath("record.jsonl"); }
  // Once it holds that; empty when it does not come.
  QByteArray recordWith(const char* text) {
    const auto bytes = [this] { return linesOf(path()).join(u'\n').toUtf8(); };
    return QTest::qWaitFor([&] { return bytes().contains(text); }, 8000) ? bytes() : QByteArray();
  }

  QTemporaryDir m_folder;
  QUrl m_opened;
  PluginHost m_host{[this](const QUrl& url) { return open(url); }};
  ServiceNetwork m_network{NetworkReach::Sandbox};
  CompanionExchange m_exchange{&m_host, &m_network};
  Sandbox m_sandbox;
  Recording m_recording{&m_host};
  UserInput m_user;
};

TEST_F(RecordedSandbox, AnExchangeAccountPlaysAgainWithoutItsServer) {
  ASSERT_NO_FATAL_FAILURE(detect("onprem@corp.sandbox.example"));
  type("m_usernameInputTxt", "CORP\\onprem");
  type("m_passwordInputTxt", "correct horse");
  click("m_applyBtn");
  const QByteArray record = recordWith("{\"notify\":15");
  EXPECT_TRUE(record.contains("{\"type\":\"m_passwordInputTxt\",\"text\":\"secret-1\"}"))
      << record.toStdString();
  QTest::qWait(200);
  m_recording.stop();
  EXPECT_FALSE(linesOf(path()).join(u'\n').contains("correct horse"));
  const SessionRun run = runSession(linesOf(path()), {"--check"});
  EXPECT_EQ(run.status, 0) << qPrintable(run.lines.value(run.lines.size() - 1)) << record.toStdString();
}

TEST_F(RecordedSandbox, ASignInLeavesNoCodeStateOrToken) {
  ASSERT_NO_FATAL_FAILURE(detect("online@cloud.sandbox.example"));
  ASSERT_TRUE(QTest::qWaitFor([this] { return !m_opened.isEmpty(); }, 8000));
  const QUrlQuery question(m_opened);
  QWidget* dialog = dialogOfClass("ADSignInDialog");
  ASSERT_TRUE(dialog);
  QTest::keyClick(dialog->windowHandle(), Qt::Key_Q);
  QTest::keyClick(dialog->windowHandle(), Qt::Key_W);
  const QUrlQuery answer(signInWithBrowser());
  QTest::qWait(1000);
  m_recording.stop();
  const QByteArray record = linesOf(path()).join(u'\n').toUtf8();
  EXPECT_TRUE(record.contains("\"opened\":")) << record.toStdString();
  EXPECT_TRUE(record.contains("\"QRT_CredentialContent\":\"secret-")) << record.toStdString();
  EXPECT_EQ(record.count("# No step can say it: keys typed into"), 1) << record.toStdString();
  for (const QString& secret :
       {question.queryItemValue("state"), question.queryItemValue("code_challenge"),
        answer.queryItemValue("code"), QString("code-"), QString("access-"), QString("refresh-")}) {
    EXPECT_FALSE(secret.isEmpty());
    EXPECT_FALSE(record.contains(secret.toUtf8())) << secret.toStdString() << " in\n" << record.toStdString();
  }
  const SessionRun run = runSession(linesOf(path()));
  EXPECT_EQ(run.status, 0) << run.complaints.toStdString();
}

}  // namespace
