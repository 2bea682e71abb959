#include <gtest/gtest.h>

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

TEST(SandboxProgram, LeavesNoFileBehindHoweverItEnds) {
  if (QStandardPaths::findExecutable("openssl").isEmpty()) GTEST_SKIP() << "openssl is missing";
  for (const bool isKilled : {true, false}) {
    const QTemporaryDir folder;
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("TMPDIR", folder.path());
    program.setProcessEnvironment(environment);
    program.start(KZ_SANDBOX, {});
    while (!program.canReadLine()) ASSERT_TRUE(program.waitForReadyRead(20'000));
    const QByteArray line = program.readLine();
    const QJsonObject described = QJsonDocument::fromJson(line).object();
    EXPECT_TRUE(described.contains("exchange") && described.contains("site"));
    EXPECT_TRUE(line.contains("CERTIFICATE") && !line.contains("PRIVATE KEY"));
    isKilled ? program.kill() : program.terminate();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_TRUE(QDir(folder.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
  }
}

}  // namespace
