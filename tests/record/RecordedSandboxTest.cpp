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
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "companion/session/UserInput.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/kit/Input.h"
#include "tests/record/PlayedRecord.h"

namespace {

QWidget* dialogOfClass(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->inherits(name)) return window;
  }
  return nullptr;
}

// A user who adds an account of the sandbox, with a browser that signs in when asked.
class RecordedSandbox : public testing::TestWithParam<const char*> {
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
    form.addQueryItem("user", GetParam());
    form.addQueryItem("answer", "yes");
    QNetworkRequest request(m_opened);
    request.setHeader(QNetworkRequest::ContentTypeHeader, "application/x-www-form-urlencoded");
    QNetworkAccessManager browser;
    browser.setRedirectPolicy(QNetworkRequest::ManualRedirectPolicy);
    QNetworkReply* answer = browser.post(request, form.toString(QUrl::FullyEncoded).toLatin1());
    EXPECT_TRUE(kit::waitUntil([&] { return answer->isFinished(); }));
    const QUrl callback = answer->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    QNetworkReply* page = browser.get(QNetworkRequest(callback));
    EXPECT_TRUE(kit::waitUntil([&] { return page->isFinished(); }));
    return callback;
  }

  void click(const char* name) {
    QWidget* control = kit::usable(*findPreferencesWindow(), name);
    ASSERT_TRUE(control);
    EXPECT_TRUE(m_user.click(control, {}).isNull()) << name;
    eventpump::settle();
  }
  void type(const char* name, const char* text) {
    auto* field = kit::usable<QLineEdit>(*findPreferencesWindow(), name);
    ASSERT_TRUE(field);
    EXPECT_TRUE(m_user.type(field, text).isNull()) << name;
  }
  void detect() {
    click("m_outlookRadioBtn");
    type("m_emailInputTxt", GetParam());
    click("m_detectBtn");
  }

  // Answers what must not be in the record.
  QStringList signIn() {
    EXPECT_TRUE(kit::waitUntil([this] { return !m_opened.isEmpty(); }));
    QWidget* dialog = dialogOfClass("ADSignInDialog");
    if (!dialog) return {};
    QTest::keyClick(dialog->windowHandle(), Qt::Key_Q);
    QTest::keyClick(dialog->windowHandle(), Qt::Key_W);
    const QUrlQuery question(m_opened);
    const QUrlQuery answer(signInWithBrowser());
    QTest::qWait(500);
    QStringList secrets = {"code-",
                           "access-",
                           "refresh-",
                           question.queryItemValue("state"),
                           question.queryItemValue("code_challenge"),
                           answer.queryItemValue("code")};
    secrets.removeAll(QString());
    EXPECT_GE(secrets.size(), 5);
    return secrets;
  }

  QString path() const { return m_folder.filePath("record.jsonl"); }
  QByteArray record() const { return linesOf(path()).join(u'\n').toUtf8(); }

  QTemporaryDir m_folder;
  QUrl m_opened;
  PluginHost m_host{[this](const QUrl& url) { return open(url); }};
  ServiceNetwork m_network{NetworkReach::Sandbox};
  CompanionExchange m_exchange{&m_host, &m_network};
  Sandbox m_sandbox;
  Recording m_recording{&m_host};
  UserInput m_user;
};

TEST_P(RecordedSandbox, PlaysAgainWithoutItsServerAndHoldsNoSecret) {
  ASSERT_NO_FATAL_FAILURE(detect());
  const QStringList secrets = signIn();
  QTest::qWait(500);
  m_recording.stop();
  for (const QString& secret : secrets)
    EXPECT_FALSE(record().contains(secret.toUtf8())) << secret.toStdString() << " in\n"
                                                     << record().toStdString();
  EXPECT_TRUE(record().contains("\"opened\":\"http")) << record().toStdString();
  EXPECT_EQ(record().count("# No step can say it: keys typed into"), 1);
  // What the network answers to the plug-in does not come again.
  const SessionRun run = runSession(linesOf(path()));
  EXPECT_EQ(run.status, 0) << qPrintable(run.lines.value(run.lines.size() - 1)) << record().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Accounts, RecordedSandbox,
                         testing::Values("online@cloud.sandbox.example", "online@trouble.sandbox.example"));

}  // namespace
