#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <memory>

#include "adal/ADAuthenticationSettings.h"
#include "adal/ADTokenCache.h"
#include "companion/app/CompanionExchange.h"
#include "companion/app/DemoUser.h"
#include "companion/app/MeetingsView.h"
#include "companion/app/Sandbox.h"
#include "companion/runtime/PluginHost.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/services/CompanionServices.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "platform/WindowController.h"
#include "tests/kit/Input.h"

namespace {

// The whole flow with the real plug-in: an account is applied in its window, and its meetings are listed. A
// fake browser follows the redirects of a sign-in.
class MeetingListTest : public testing::Test {
 protected:
  void SetUp() override {
    if (QStandardPaths::findExecutable("openssl").isEmpty()) GTEST_SKIP() << "openssl is missing";
    ASSERT_TRUE(KZPlistFileHandle::sharedInstance().open(folder.path()));
    KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
    ASSERT_TRUE(host.load(PREFERENCES));
    QLocale::setDefault(QLocale(QLocale::Spanish));
    EXPECT_EQ(ADAuthenticationSettings::sharedInstance().text("Cancel"), "Cancelar");
    QLocale::setDefault(QLocale::c());
    QObject::connect(&services, &CompanionServices::message, &services,
                     [this](const QString& text) { notices.append(text); });
    QObject::connect(&sandbox, &Sandbox::ready, &services.network(), &ServiceNetwork::useSandbox);
    startSandbox();
    services.site().signIn();
    host.trigger(KZCommand::KZCmdShowPreference);
    window = findPreferencesWindow();
    ASSERT_NE(window, nullptr);
    paneItemNamed(*window, "Meetings")->trigger();
    view.show();
  }

  void TearDown() override {
    view.close();
    host.shutDown();
    KZPlistFileHandle::sharedInstance().close();
  }

  // A sandbox that signs every user in without asking.
  void startSandbox() {
    QFile script(folder.filePath("sandbox"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nexec " KZ_SANDBOX " --give \"$@\"\n");
    script.close();
    ASSERT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    QSignalSpy ready(&sandbox, &Sandbox::ready);
    sandbox.start(script.fileName());
    ASSERT_TRUE(ready.wait(20'000));
  }

  QWidget* shown(const char* name) { return kit::usable(*window, name); }

  void click(const char* name) {
    if (auto* button = qobject_cast<QAbstractButton*>(shown(name))) button->click();
  }

  void type(const char* name, const QString& text) {
    if (QWidget* field = shown(name)) QTest::keyClicks(field, text);
  }

  // Whether the Preferences window has a label with that text.
  bool reads(const QString& text) const {
    for (const QLabel* label : window->findChildren<QLabel*>()) {
      if (label->isVisible() && label->text() == text) return true;
    }
    return false;
  }

  QString listText() const { return view.findChild<QLabel*>("meetingsText")->text(); }

  bool lists(const QString& subject) {
    return QTest::qWaitFor(
        [&] { return !view.findChild<QTableWidget*>()->findItems(subject, Qt::MatchExactly).isEmpty(); },
        8000);
  }

  void applyOnlineAccount() {
    if (auto* field = qobject_cast<QLineEdit*>(shown("m_emailInputTxt"))) field->selectAll();
    type("m_emailInputTxt", "online@cloud.sandbox.example");
    click("m_detectBtn");
  }

  const QTemporaryDir folder;
  QNetworkAccessManager browser;
  PluginHost host{[this](const QUrl& url) {
    QNetworkReply* page = browser.get(QNetworkRequest(url));
    QObject::connect(page, &QNetworkReply::finished, page, &QObject::deleteLater);
    return true;
  }};
  CompanionServices services{&host,
                             {.reach = NetworkReach::Sandbox,
                              .exchange = {},
                              .record = demouser::record(),
                              .dataFolder = folder.filePath("data"),
                              .autostart = AutostartEntry(folder.filePath("autostart"), "/bin/true")}};
  CompanionExchange exchange{&host, &services.network()};
  Sandbox sandbox;
  MeetingsView view{&services.meetings()};
  Window* window = nullptr;
  QStringList notices;
};

TEST_F(MeetingListTest, ListsAnAccountWithAPasswordUntilItIsRefused) {
  if (IsSkipped()) return;
  EXPECT_TRUE(QTest::qWaitFor([this] { return listText().contains("enter your email address"); }, 2000))
      << listText().toStdString();
  click("m_outlookRadioBtn");
  type("m_emailInputTxt", "onprem@corp.sandbox.example");
  click("m_detectBtn");
  type("m_usernameInputTxt", "CORP\\onprem");
  type("m_passwordInputTxt", "correct horse");
  click("m_applyBtn");
  EXPECT_TRUE(lists("Stand-up")) << listText().toStdString();

  KZKeyChainHandle::sharedInstance().commitOutlookUsername("CORP\\onprem", "changed");
  services.meetings().refresh();
  EXPECT_TRUE(QTest::qWaitFor([this] { return listText().contains("did not accept the saved"); }, 8000))
      << listText().toStdString();
  EXPECT_TRUE(notices.join(u'\n').contains("did not accept the saved"));
  EXPECT_FALSE(view.findChild<QTableWidget*>()->isVisible());
}

// After a failure in the browser or at a server, the pane shows the failure, the user can try again, and
// nothing of the account is stored.
TEST_F(MeetingListTest, AFailedOnlineSignInIsShownAndStoresNothing) {
  if (IsSkipped()) return;
  click("m_outlookRadioBtn");
  for (const char* email :
       {"online@refused.sandbox.example", "online@trouble.sandbox.example", "online@page.sandbox.example"}) {
    if (auto* field = qobject_cast<QLineEdit*>(shown("m_emailInputTxt"))) field->selectAll();
    type("m_emailInputTxt", email);
    EXPECT_FALSE(reads("Applied failed")) << email << ": of the account before";
    click("m_detectBtn");
    EXPECT_TRUE(QTest::qWaitFor([this] { return reads("Applied failed"); }, 8000)) << email;
    EXPECT_NE(shown("m_detectBtn"), nullptr) << email;
    EXPECT_TRUE(listText().contains("enter your email address")) << email << ": " << listText().toStdString();
  }
  applyOnlineAccount();
  EXPECT_TRUE(lists("Stand-up")) << listText().toStdString();
}

// Holds one secret, and is locked at first.
struct LockedKeyring final : KZKeychainBackend {
  explicit LockedKeyring(QByteArray kept) : secret(std::move(kept)) {}
  Answer read(const Item& /*item*/) override {
    return isLocked ? Answer{.status = Status::Locked, .secret = {}}
                    : Answer{.status = Status::Done, .secret = secret};
  }
  Status write(const Item& /*item*/, const QByteArray& /*secret*/) override { return Status::Locked; }
  Status remove(const Item& /*item*/) override { return Status::Locked; }

  const QByteArray secret;
  std::atomic<bool> isLocked = true;
};

TEST_F(MeetingListTest, ListsAsSoonAsTheKeyringIsUnlocked) {
  if (IsSkipped()) return;
  click("m_outlookRadioBtn");
  applyOnlineAccount();
  ASSERT_TRUE(lists("Stand-up")) << listText().toStdString();
  KZKeyChainHandle& keychain = KZKeyChainHandle::sharedInstance();
  const auto keyring =
      std::make_shared<LockedKeyring>(keychain.getOutlookOnlineData().value_or(QByteArray()));
  keychain.useBackend(keyring);
  // As in a new run, which has only what it reads.
  EXPECT_FALSE(ADTokenCache::defaultCache().deserialize(std::nullopt));
  services.meetings().refresh();
  EXPECT_TRUE(QTest::qWaitFor([this] { return listText().contains("Nobody is signed in"); }, 8000))
      << listText().toStdString();
  keyring->isLocked = false;
  EXPECT_TRUE(lists("Stand-up")) << listText().toStdString();
}

TEST_F(MeetingListTest, AHiddenPageSendsNoRequests) {
  if (IsSkipped()) return;
  QSignalSpy changed(&services.meetings(), &NextMeetings::changed);
  view.hide();
  click("m_outlookRadioBtn");
  host.trigger(KZCommand::KZCmdCalendarIntegrationSourceChanged);
  QTest::qWait(100);
  EXPECT_TRUE(changed.isEmpty());
  view.show();
  EXPECT_TRUE(changed.wait(2000));
}

}  // namespace
