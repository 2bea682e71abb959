#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTcpSocket>
#include <QTest>

#include "KZPreference/core/KZPreferenceCore.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZWorkspace.h"
#include "platform/WindowController.h"
#include "sandbox/Authority.h"
#include "tests/KZPreference/authentication/TokenHost.h"
#include "tests/KZPreference/panes/meetings/PreferenceHost.h"
#include "tests/kit/Input.h"

namespace {

QString jsonText(const QVariantMap& values) {
  return QString::fromUtf8(QJsonDocument(QJsonObject::fromVariantMap(values)).toJson());
}

bool isDialogShown() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && qobject_cast<const QDialog*>(window);
  });
}

class PreferencesSignIn : public testing::Test, public TokenHost {
 protected:
  PreferencesSignIn() {
    EXPECT_TRUE(m_server.listen());
    authority = std::make_unique<sandbox::Authority>(m_server, "/common");
    KZWorkspace::sharedWorkspace().setOpener([this](const QUrl& address) {
      opened.append(address);
      if (onOpen) onOpen();
      return true;
    });
  }
  ~PreferencesSignIn() override {
    KZPreferenceCore::shutDown();
    KZWorkspace::sharedWorkspace().setOpener({});
  }

  void requestSignIn(const QString& email = "alice@example.com") {
    const QString params = jsonText({{"authority", authority->address()},
                                     {"resource", "https://mail.example.com"},
                                     {"clientId", "client-1"},
                                     {"redirectUri", "http://127.0.0.1"},
                                     {"email", email}});
    notify(KZNotify::KZNotifyO365LoginRequesting,
           Dictionary{{"O365LoginData", jsonText({{"O365LoginParams", params}})}});
  }
  bool waitForPage(int count = 1) {
    return kit::waitUntil([&] { return opened.size() >= count && isDialogShown(); });
  }
  void browse(const QUrl& page) {
    QNetworkReply* const reply = m_browser.get(QNetworkRequest(page));
    QObject::connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
  }
  static bool isListening(const QUrl& page) {
    QTcpSocket socket;
    const QUrl redirect(QUrlQuery(page).queryItemValue("redirect_uri", QUrl::FullyDecoded));
    socket.connectToHost(redirect.host(), static_cast<quint16>(redirect.port()));
    return socket.waitForConnected(1000);
  }
  void openMeetings() {
    command(KZCommand::KZCmdShowPreference);
    kit::clickItem(*window(), "Meetings");
  }

  std::unique_ptr<sandbox::Authority> authority;
  QList<QUrl> opened;
  std::function<void()> onOpen;  // from within the request to open a page

 private:
  sandbox::HttpServer m_server;
  QNetworkAccessManager m_browser;
};

TEST_F(PreferencesSignIn, WhatIsGivenUpEndsAndSendsNothing) {
  const struct {
    const char* name;
    bool hasWindow;
    std::function<void()> giveUp;
  } cases[] = {
      {"the user closes Preferences", true, [] { window()->close(); }},
      {"another address is applied", true,
       [] {
         PreferenceHost::click("m_outlookRadioBtn");
         PreferenceHost::type("m_emailInputTxt", "ann@brenn.example");
         PreferenceHost::click("m_detectBtn");
       }},
      {"the host destroys the window", true, [this] { command(3); }},
      {"the host destroys no window", false, [this] { command(3); }},
      {"the host turns to the guest", false, [this] { command(1); }},
      {"the host ends", true, [] { KZPreferenceCore::shutDown(); }},
  };
  for (const auto& tried : cases) {
    // While the user is in the browser, and while the tokens are being fetched.
    for (const bool isAnswered : {false, true}) {
      SCOPED_TRACE(testing::Message() << tried.name << (isAnswered ? ", answered" : ""));
      if (tried.hasWindow) openMeetings();
      opened.clear();
      takeSent();
      authority->setFault(isAnswered ? sandbox::Authority::Fault::Silent : sandbox::Authority::Fault::None);
      const auto before = authority->tokenRequests().size();
      requestSignIn();
      ASSERT_TRUE(waitForPage());
      EXPECT_TRUE(isListening(opened.first()));
      if (isAnswered) {
        browse(opened.first());
        ASSERT_TRUE(kit::waitUntil([&] { return authority->tokenRequests().size() > before; }));
      }
      tried.giveUp();
      EXPECT_FALSE(isDialogShown());
      EXPECT_FALSE(isListening(opened.first()));
      if (!isAnswered) browse(opened.first());
      QTest::qWait(50);
      EXPECT_EQ(credentials.size(), 0);
      EXPECT_TRUE(takeSent().filter("Applied failed").isEmpty());
      m_core = &KZPreferenceCore::sharedInstance();
      m_core->setDelegate(this);
      command(3);
      kit::settle();
    }
  }
}

// Tokens of a minute's life are always expired, so that each request is a refresh.
TEST_F(PreferencesSignIn, GetsItsResultAmongRefreshesThatGetTheirs) {
  constexpr int users = 8;
  provider.setLifetime(60);
  provider.setDelay(std::chrono::milliseconds(15));
  for (int user = 0; user < users; ++user) addUser(QString::number(user));
  int asked = 0;
  for (int round = 1; round <= 3; ++round) {
    opened.clear();
    requestSignIn();
    ASSERT_TRUE(waitForPage());
    for (int user = 0; user < users; ++user, ++asked) ask(QString::number(user));
    browse(opened.first());
    ASSERT_TRUE(kit::waitUntil([&] { return credentials.size() == round; }));
    EXPECT_LT(order.size(), asked) << "it waits for one refresh, not for all";
    EXPECT_TRUE(authority->isGranted(textValue(credentials.last(), QRT_CredentialContent)));
    ASSERT_TRUE(waitForAnswers(asked));
  }
  EXPECT_EQ(order.size(), asked);
  for (int number = 1; number <= asked; ++number) {
    const QString token =
        textValue(answerTo(number).value_or(Dictionary()), QRT_ListingMeeting_exchOnlineToken);
    EXPECT_TRUE(token.startsWith(QStringLiteral("access-of-%1-").arg((number - 1) % users))) << number;
  }
  EXPECT_EQ(provider.reuses(), 0);
}

TEST_F(PreferencesSignIn, MayBeGivenUpWhileItsPageIsBeingOpened) {
  const std::function<void()> giveUp[] = {[] { window()->close(); }, [] { KZPreferenceCore::shutDown(); }};
  for (const auto& act : giveUp) {
    openMeetings();
    opened.clear();
    onOpen = act;
    requestSignIn();
    ASSERT_TRUE(kit::waitUntil([this] { return !opened.isEmpty(); }));
    kit::settle();
    EXPECT_FALSE(isDialogShown());
    EXPECT_FALSE(isListening(opened.first()));
  }
}

TEST_F(PreferencesSignIn, FailsUnheardWhenItsWindowIsDestroyed) {
  openMeetings();
  command(3);
  kit::settle();
  authority->setConsent(sandbox::Authority::Consent::Refuse);
  requestSignIn();
  ASSERT_TRUE(waitForPage());
  takeSent();
  browse(opened.first());
  ASSERT_TRUE(kit::waitUntil([] { return !isDialogShown(); }));
  QTest::qWait(30);
  EXPECT_EQ(takeSent(), QStringList());
}

TEST_F(PreferencesSignIn, ClosingPreferencesEndsNoRefresh) {
  addUser("a");
  provider.setDelay(std::chrono::milliseconds(50));
  openMeetings();
  ask("a");
  window()->close();
  command(3);
  command(1);
  EXPECT_TRUE(waitForAnswers(1));
}

TEST_F(PreferencesSignIn, AnEqualSignInJoinsAndAnotherOneReplaces) {
  requestSignIn();
  requestSignIn();
  ASSERT_TRUE(waitForPage());
  requestSignIn();
  QTest::qWait(50);
  EXPECT_EQ(opened.size(), 1);

  requestSignIn("bob@example.com");
  EXPECT_FALSE(isListening(opened.first()));
  ASSERT_TRUE(waitForPage(2));
  browse(opened.first());
  QTest::qWait(50);
  EXPECT_EQ(credentials.size(), 0);
  browse(opened.last());
  ASSERT_TRUE(kit::waitUntil([this] { return !credentials.isEmpty(); }));
  browse(opened.last());
  QTest::qWait(50);
  EXPECT_EQ(opened.size(), 2);
  EXPECT_EQ(credentials.size(), 1);
  EXPECT_FALSE(isDialogShown());
}

}  // namespace
