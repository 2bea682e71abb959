#include "KZPreference/authentication/OLAccountAuthenticator.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <QThread>
#include <atomic>
#include <thread>

#include "KZPreference/core/KZPreferenceCore.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/KZPreference/panes/meetings/PreferenceHost.h"

namespace {

// Posts a challenge on its own thread, which the destructor joins.
class Worker {
 public:
  explicit Worker(const QVariant& kind)
      : m_thread([this, kind] {
          PreferenceHost::challenge(kind);
          m_isBack = true;
        }) {}
  ~Worker() { m_thread.join(); }
  bool isBack() const { return m_isBack; }
  bool comesBack() const {
    return QTest::qWaitFor([this] { return isBack(); }, 5000);
  }

 private:
  std::atomic<bool> m_isBack = false;
  std::thread m_thread;
};

class OLAccountAuthenticatorTest : public testing::Test {
 protected:
  OLAccountAuthenticatorTest() {
    m_answers = KZNotificationCenter::defaultCenter().addObserver(
        QStringLiteral("HTTPAuthenticationDatasource"), [this](const KZNotification& answer) {
          EXPECT_EQ(answer.userInfo.value(QStringLiteral("Remember")), QVariant(QStringLiteral("1")));
          EXPECT_EQ(answer.userInfo.value(QStringLiteral("isExchAutodiscovering")), QVariant(true));
          EXPECT_TRUE(answer.object);
          happened.append(textValue(answer.userInfo, QStringLiteral("Username")) + u'/' +
                          textValue(answer.userInfo, QStringLiteral("Password")));
          isAnsweredOnMain = std::this_thread::get_id() == m_main;
          if (onAnswer) onAnswer();
        });
  }

  void collect(const QString& username, const QString& password) {
    host.openMeetings(PreferenceHost::Variant::SignedIn);
    host.type("m_emailInputTxt", QStringLiteral("ann@brenn.example"));
    host.click("m_detectBtn");
    host.needCredential();
    host.type("m_usernameInputTxt", username);
    host.type("m_passwordInputTxt", password);
    host.takeSent();
  }

  PreferenceHost host;
  QStringList happened;
  std::function<void()> onAnswer;
  bool isAnsweredOnMain = false;

 private:
  std::thread::id m_main = std::this_thread::get_id();
  KZNotificationCenter::Token m_answers;
};

TEST_F(OLAccountAuthenticatorTest, AnswersByKindAndByWhatIsKnown) {
  const struct {
    QVariant kind;
    QVariant warning;
    QString keychainUser;
    QString keychainPassword;
    QStringList answers;
    QStringList sent;
  } cases[] = {
      {QVariant(), QVariant(), "kim", "kc", {}, {}},
      {0, QVariant(), "kim", "kc", {}, {}},
      {3, QVariant(), "kim", "kc", {}, {}},
      {"x", QVariant(), "kim", "kc", {}, {}},
      {1, QVariant(), "kim", "kc", {"/"}, {}},
      {"1", "false", "kim", "kc", {"/"}, {}},
      {2, QVariant(), "kim", "kc", {"kim/kc"}, {}},
      {2, "True", "kim", "kc", {"kim/kc"}, {}},
      {2, true, "kim", "kc", {"kim/kc"}, {}},
      {2, "true", "kim", "kc", {"/"}, {"21 {}"}},
      {2, QVariant(), "kim", "", {"/"}, {"21 {}"}},
      {2, QVariant(), "", "kc", {"/"}, {"21 {}"}},
      {2, QVariant(), QString(), QString(), {"/"}, {"21 {}"}},
  };
  for (const auto& tried : cases) {
    KZKeyChainHandle::sharedInstance().useStorage(KZKeyChainHandle::Storage::Memory);
    KZKeyChainHandle::sharedInstance().commitOutlookUsername(tried.keychainUser, tried.keychainPassword);
    happened.clear();
    PreferenceHost::challenge(tried.kind, tried.warning);
    EXPECT_EQ(happened, tried.answers) << (&tried - cases);
    EXPECT_EQ(host.takeSent(), tried.sent) << (&tried - cases);
  }
  const Dictionary exchange =
      dictionaryValue(KZPlistFileHandle::sharedInstance().calendarIntegration().value_or(Dictionary()),
                      kKZCalendarIntegrationExchange);
  EXPECT_EQ(flagValue(exchange, kKZCalendarIntegrationOnpremiseCredValid), false);
  EXPECT_TRUE(host.takeTrace().filter("kc").isEmpty());
}

// First the group shows the failure, then the empty credential is posted, and 100 ms later the command is
// sent.
TEST_F(OLAccountAuthenticatorTest, ARefusedCredentialIsReportedInOrderAndNotSentAgain) {
  collect(QStringLiteral("ann"), QStringLiteral("pw"));
  PreferenceHost::challenge(1);
  EXPECT_EQ(happened, QStringList("ann/pw"));
  onAnswer = [this] {
    if (PreferenceHost::control("m_messageTxt").isVisible()) happened.append("after the group");
    happened += host.takeSent();
  };
  happened.clear();
  QElapsedTimer timer;
  timer.start();
  PreferenceHost::challenge(1, QStringLiteral("true"));
  EXPECT_EQ(happened, QStringList({"/", "after the group"}));
  EXPECT_TRUE(host.takeSent().isEmpty());
  QStringList sent;
  EXPECT_TRUE(QTest::qWaitFor([&] { return !(sent = host.takeSent()).isEmpty(); }, 2000));
  EXPECT_GE(timer.elapsed(), 95);
  EXPECT_EQ(sent, QStringList("22 {}"));
}

TEST_F(OLAccountAuthenticatorTest, AWorkersChallengeIsAnsweredOnTheMainThreadBeforeItsPostReturns) {
  collect(QStringLiteral("ann"), QStringLiteral("pw"));
  const Worker worker(1);
  bool wasWaiting = false;
  onAnswer = [&] { wasWaiting = !worker.isBack(); };
  EXPECT_TRUE(worker.comesBack());
  EXPECT_EQ(happened, QStringList("ann/pw"));
  EXPECT_TRUE(isAnsweredOnMain);
  EXPECT_TRUE(wasWaiting);
}

TEST_F(OLAccountAuthenticatorTest, AChallengeMayComeFromWithinAnAnswer) {
  onAnswer = [this] {
    if (happened.size() < 3) PreferenceHost::challenge(1);
  };
  PreferenceHost::challenge(1);
  EXPECT_EQ(happened.size(), 3);
}

TEST_F(OLAccountAuthenticatorTest, AWorkerComesBackWhileTheWindowCloses) {
  collect(QStringLiteral("ann"), QStringLiteral("pw"));
  const Worker worker(1);
  QThread::msleep(50);
  PreferenceHost::window()->close();
  host.command(KZCommand::KZCmdDestroyPreference);
  EXPECT_TRUE(worker.comesBack());
  EXPECT_EQ(happened, QStringList("/"));
}

// The waiting threads continue although the main thread does not return to its event loop.
TEST_F(OLAccountAuthenticatorTest, WorkersComeBackWhenThePlugInShutsDown) {
  {
    auto authenticator = std::make_unique<OLAccountAuthenticator>(nullptr);
    std::vector<std::unique_ptr<Worker>> workers;
    for (int i = 0; i < 4; ++i) workers.push_back(std::make_unique<Worker>(3));
    QThread::msleep(50);
    KZPreferenceCore::shutDown();
    authenticator.reset();
  }
  EXPECT_TRUE(happened.isEmpty());
}

TEST_F(OLAccountAuthenticatorTest, ADestroyedAuthenticatorReportsNoRefusal) {
  PreferenceHost::challenge(1, QStringLiteral("true"));
  KZPreferenceCore::shutDown();
  QTest::qWait(150);
  EXPECT_TRUE(host.takeSent().isEmpty());
}

}  // namespace
