#include "companion/runtime/SingleInstance.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <memory>

namespace {

using namespace std::chrono_literals;
using Claim = SingleInstance::Claim;

constexpr int kStartMilliseconds = 30'000;

// With a folder of its own for sockets, and one for the state.
class SingleInstanceTest : public testing::Test {
 protected:
  SingleInstanceTest() { qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path())); }
  ~SingleInstanceTest() override {
    if (before.isNull()) {
      qunsetenv("XDG_RUNTIME_DIR");
    } else {
      qputenv("XDG_RUNTIME_DIR", before);
    }
  }
  Q_DISABLE_COPY_MOVE(SingleInstanceTest)

  // A second one claims in another thread, while this one's events run.
  Claim claimBeside(const QString& folder, std::chrono::milliseconds patience = 5s) {
    Claim outcome = Claim::First;
    const std::unique_ptr<QThread> other(
        QThread::create([&] { outcome = SingleInstance(folder).claim(patience); }));
    other->start();
    while (!other->isFinished()) QTest::qWait(5);
    return outcome;
  }

  QString socketFile() const {
    const QStringList files = QDir(runtime.path()).entryList(QDir::System | QDir::Files);
    return files.size() == 1 ? runtime.filePath(files.first()) : QString();
  }

  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  const QTemporaryDir runtime;
  const QTemporaryDir state;
};

TEST_F(SingleInstanceTest, TheSecondAsksTheFirstByWhateverWay) {
  ASSERT_TRUE(QFile::link(state.path(), runtime.filePath("link")));
  SingleInstance first(state.path());
  QSignalSpy asked(&first, &SingleInstance::asked);
  ASSERT_EQ(first.claim(), Claim::First);
  const QString rows[] = {state.path(), state.path() + "/../" + QDir(state.path()).dirName() + "/",
                          runtime.filePath("link"), QDir::current().relativeFilePath(state.path())};
  for (const QString& row : rows) {
    asked.clear();
    EXPECT_EQ(claimBeside(row), Claim::Asked) << qPrintable(row);
    EXPECT_EQ(asked.size(), 1);
  }
  const QTemporaryDir other;
  EXPECT_EQ(claimBeside(other.path()), Claim::First);
}

TEST_F(SingleInstanceTest, TheNextIsFirstAgain) {
  for (int turn = 0; turn < 3; ++turn) {
    SingleInstance first(state.filePath("made/here"));
    EXPECT_EQ(first.claim(0ms), Claim::First);
    EXPECT_TRUE(
        QDir(state.filePath("made/here")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
  }
  EXPECT_TRUE(socketFile().isNull());
}

TEST_F(SingleInstanceTest, OneWithoutAnEventLoopDoesNotHoldTheSecondUpForLong) {
  SingleInstance first(state.path());
  ASSERT_EQ(first.claim(), Claim::First);
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ(SingleInstance(state.path()).claim(300ms), Claim::NoAnswer);
  EXPECT_LT(timer.elapsed(), 2000);
}

TEST_F(SingleInstanceTest, GarbageOnTheSocketIsNoQuestion) {
  SingleInstance first(state.path());
  QSignalSpy asked(&first, &SingleInstance::asked);
  ASSERT_EQ(first.claim(), Claim::First);
  const QByteArray rows[] = {
      "\n", "hide\n", "show", "shows\n", QByteArray(100'000, 'x'), QByteArray(100, '\0')};
  std::vector<std::unique_ptr<QLocalSocket>> sockets;
  for (const QByteArray& row : rows) {
    sockets.push_back(std::make_unique<QLocalSocket>());
    sockets.back()->connectToServer(socketFile());
    sockets.back()->write(row);
  }
  EXPECT_EQ(claimBeside(state.path()), Claim::Asked);
  EXPECT_EQ(asked.size(), 1);
  // Also who says nothing that could become a question is sent away.
  for (const auto& socket : sockets) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return socket->state() == QLocalSocket::UnconnectedState; }, 5000));
    EXPECT_EQ(socket->readAll(), "");
  }
}

TEST_F(SingleInstanceTest, AnAnswerThatIsNoneDoesNotLetTwoIn) {
  auto first = std::make_unique<SingleInstance>(state.path());
  ASSERT_EQ(first->claim(), Claim::First);
  const QString path = socketFile();
  ASSERT_TRUE(QFile::remove(path));
  QLocalServer strange;
  ASSERT_TRUE(strange.listen(path));
  QObject::connect(&strange, &QLocalServer::newConnection, [&strange] {
    QLocalSocket* socket = strange.nextPendingConnection();
    socket->write("hello there\n");
    socket->flush();
  });
  EXPECT_EQ(claimBeside(state.path(), 300ms), Claim::NoAnswer);
}

TEST_F(SingleInstanceTest, AFolderForSocketsThatIsAnotherUsersIsNotUsed) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
  ASSERT_EQ(::chown(QFile::encodeName(runtime.path()).constData(), 65534, 65534), 0);
  SingleInstance first(state.path());
  EXPECT_EQ(first.claim(), Claim::First);
  EXPECT_TRUE(socketFile().isNull());
  EXPECT_NE(claimBeside(state.path(), 100ms), Claim::First);
}

// The companion itself; Preferences are the fake plug-in's.
class SecondCompanionTest : public SingleInstanceTest {
 protected:
  static void start(QProcess* companion, const QString& folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // Offscreen it would play its demonstration.
    environment.insert("QT_QPA_PLATFORM", "minimal");
    companion->setProcessEnvironment(environment);
    companion->start(COMPANION, {"--plugin", FAKE_PLUGIN, "--state", folder});
  }

  struct Run {
    int status;
    QByteArray output;
    QByteArray complaints;
  };
  static Run run(const QString& folder) {
    QProcess second;
    start(&second, folder);
    if (!second.waitForFinished(kStartMilliseconds)) return {-1, {}, {}};
    return {second.exitCode(), second.readAllStandardOutput(), second.readAllStandardError()};
  }

  // A killed one leaves its socket's file, so only an answering socket tells.
  bool waitUntilListening() {
    const auto isListening = [this] {
      if (m_path.isNull()) m_path = socketFile();
      QLocalSocket probe;
      probe.connectToServer(m_path);
      return !m_path.isNull() && probe.waitForConnected(100);
    };
    return QTest::qWaitFor(isListening, kStartMilliseconds);
  }

 private:
  QString m_path;
};

TEST_F(SecondCompanionTest, EndsWithOneLineUntilTheFirstIsKilled) {
  for (int turn = 0; turn < 2; ++turn) {
    QProcess first;
    start(&first, state.path());
    ASSERT_TRUE(waitUntilListening());
    const Run second = run(state.path());
    EXPECT_EQ(second.status, 0) << second.complaints.toStdString();
    EXPECT_EQ(second.output.count('\n'), 1) << second.output.toStdString();
    EXPECT_EQ(first.state(), QProcess::Running);
    const QTemporaryDir other;
    QProcess beside;
    start(&beside, other.path());
    EXPECT_FALSE(beside.waitForFinished(300));
    for (QProcess* companion : {&first, &beside}) {
      companion->kill();
      EXPECT_TRUE(companion->waitForFinished());
    }
  }
}

TEST_F(SecondCompanionTest, SaysThatAHungFirstDoesNotAnswer) {
  QProcess first;
  start(&first, state.path());
  ASSERT_TRUE(waitUntilListening());
  ASSERT_EQ(run(state.path()).status, 0);
  ASSERT_EQ(::kill(static_cast<pid_t>(first.processId()), SIGSTOP), 0);
  const Run second = run(state.path());
  EXPECT_EQ(second.status, 1);
  EXPECT_EQ(second.output, "");
  EXPECT_TRUE(second.complaints.contains("does not answer")) << second.complaints.toStdString();
  first.kill();
  EXPECT_TRUE(first.waitForFinished());
}

}  // namespace
