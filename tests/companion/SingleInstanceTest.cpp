#include "companion/runtime/SingleInstance.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
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

constexpr int kStartMilliseconds = 30'000;

// A fixture with temporary folders for sockets and for the state.
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

  // A second instance asks in another thread, while this one handles events.
  static bool askBeside(const QString& folder, std::chrono::milliseconds patience = 5s) {
    bool isAnswered = false;
    const std::unique_ptr<QThread> other(
        QThread::create([&] { isAnswered = SingleInstance(folder).askFirst(patience); }));
    other->start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return other->isFinished(); }, 10'000));
    return isAnswered;
  }

  QString socketFile() const {
    const QStringList files = QDir(runtime.path()).entryList(QDir::System | QDir::Files);
    return files.size() == 1 ? runtime.filePath(files.first()) : QString();
  }

  const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
  const QTemporaryDir runtime;
  const QTemporaryDir state;
};

TEST_F(SingleInstanceTest, AnswersWhateverWayTheFolderIsWritten) {
  ASSERT_TRUE(QFile::link(state.path(), runtime.filePath("link")));
  SingleInstance first(state.path());
  QSignalSpy asked(&first, &SingleInstance::asked);
  EXPECT_FALSE(askBeside(state.path()));
  first.listen();
  const QString rows[] = {state.path(), state.path() + "/../" + QDir(state.path()).dirName() + "/",
                          runtime.filePath("link"), QDir::current().relativeFilePath(state.path())};
  for (const QString& row : rows) {
    asked.clear();
    EXPECT_TRUE(askBeside(row)) << qPrintable(row);
    EXPECT_EQ(asked.size(), 1);
  }
  const QTemporaryDir other;
  EXPECT_FALSE(askBeside(other.path()));
}

TEST_F(SingleInstanceTest, GarbageOnTheSocketIsNoQuestion) {
  SingleInstance first(state.path());
  QSignalSpy asked(&first, &SingleInstance::asked);
  first.listen();
  const QByteArray rows[] = {
      "\n", "hide\n", "show", "shows\n", QByteArray(100'000, 'x'), QByteArray(100, '\0')};
  std::vector<std::unique_ptr<QLocalSocket>> sockets;
  for (const QByteArray& row : rows) {
    sockets.push_back(std::make_unique<QLocalSocket>());
    sockets.back()->connectToServer(socketFile());
    sockets.back()->write(row);
  }
  EXPECT_TRUE(askBeside(state.path()));
  EXPECT_EQ(asked.size(), 1);
  for (const auto& socket : sockets) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return socket->state() == QLocalSocket::UnconnectedState; }, 5000));
    EXPECT_EQ(socket->readAll(), "");
  }
}

TEST_F(SingleInstanceTest, AnotherProgramsAnswerIsNone) {
  QString path;
  {
    SingleInstance first(state.path());
    first.listen();
    path = socketFile();
  }
  QLocalServer strange;
  ASSERT_TRUE(strange.listen(path));
  QObject::connect(&strange, &QLocalServer::newConnection, [&strange] {
    QLocalSocket* socket = strange.nextPendingConnection();
    socket->write("hello there\n");
    socket->flush();
  });
  EXPECT_FALSE(askBeside(state.path(), 300ms));
}

TEST_F(SingleInstanceTest, AFolderForSocketsThatIsAnotherUsersIsNotUsed) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a folder away";
  ASSERT_EQ(::chown(QFile::encodeName(runtime.path()).constData(), 65534, 65534), 0);
  SingleInstance first(state.path());
  first.listen();
  EXPECT_TRUE(socketFile().isNull());
}

// With the companion itself and the fake plug-in.
class SecondCompanionTest : public SingleInstanceTest {
 protected:
  static void start(QProcess* companion, const QString& folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
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

  // A killed instance leaves its socket's file, so the socket must respond.
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

TEST_F(SecondCompanionTest, ReportsAFirstInstanceThatDoesNotRespond) {
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
