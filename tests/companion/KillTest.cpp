#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <chrono>
#include <functional>
#include <thread>

#include "host/KZUtility/KZPlistFileHandle.h"
#include "host/KZUtility/SecretServiceKeychain.h"
#include "tests/host/keychain/ServiceProcess.h"
#include "tests/kit/TraceCollector.h"

namespace {

constexpr int kStepsInScript = 500;
constexpr int kLongestLifeMicroseconds = 40'000;
constexpr int kSessionStartMilliseconds = 30'000;

QByteArray lineOf(const QJsonObject& step) {
  return QJsonDocument(step).toJson(QJsonDocument::Compact) + '\n';
}

// A script that writes one number after the other and prints each when its write has returned.
QByteArray countingScript(int from, const std::function<QJsonObject(int)>& write) {
  QByteArray script;
  for (int number = from; number < from + kStepsInScript; ++number) {
    script += lineOf(write(number)) + lineOf({{"echo", number}});
  }
  return script;
}

// Plays the script, kills the program some time after the first confirmed number, and returns the last
// confirmed one; 0 when there was none.
int lastConfirmed(const QStringList& options, const QByteArray& script) {
  const QTemporaryDir folder;
  QFile file(folder.filePath("script"));
  if (!file.open(QIODevice::WriteOnly) || file.write(script) != script.size()) return 0;
  file.close();
  QProcess session;
  session.start(PREFS_SESSION, QStringList{"--plugin", FAKE_PLUGIN} + options + QStringList{file.fileName()});
  if (!session.waitForReadyRead(kSessionStartMilliseconds)) return 0;
  std::this_thread::sleep_for(
      std::chrono::microseconds(QRandomGenerator::global()->bounded(kLongestLifeMicroseconds)));
  session.kill();
  if (!session.waitForFinished()) return 0;
  const QList<QByteArray> lines = session.readAllStandardOutput().split('\n');
  // The text after the last line feed is incomplete.
  return lines.size() < 2 ? 0 : QJsonDocument::fromJson(lines.at(lines.size() - 2)).object()["echo"].toInt();
}

QStringList filesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

void age(const QString& folder) {
  for (const QString& name : filesIn(folder)) {
    QFile file(QDir(folder).filePath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.setFileTime(QDateTime::currentDateTime().addSecs(-3600), QFileDevice::FileModificationTime);
  }
}

}  // namespace

TEST(Killed, LosesNoSettingThatWasConfirmed) {
  constexpr int rounds = 12;
  const QTemporaryDir state;
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  const TraceCollector watch;
  const auto write = [](int number) {
    // Long enough to be written in pieces.
    const QString filler(20'000, u'x');
    return QJsonObject{{"set", "store"},
                       {"values", QJsonObject{{"siteName", QString::number(number)}, {"cdnUrl", filler}}}};
  };
  int number = 1;
  for (int round = 1; round <= rounds; ++round) {
    const int confirmed = lastConfirmed({"--state", state.path()}, countingScript(number, write));
    ASSERT_GE(confirmed, number);
    ASSERT_TRUE(store.open(state.path()));
    // The last write may be complete without its confirmation.
    const int kept = store.siteName().toInt();
    EXPECT_TRUE(kept == confirmed || kept == confirmed + 1) << kept << " instead of " << confirmed;
    EXPECT_LE(filesIn(state.path()).size(), 1 + round);
    store.close();
    number = kept + 1;
  }
  EXPECT_EQ(watch.count(KZTraceLevel::Error), 0);
  age(state.path());
  ASSERT_TRUE(store.open(state.path()));
  EXPECT_EQ(filesIn(state.path()), QStringList{"preferences.plist"});
  store.close();
}

TEST(Killed, LosesNoSecretThatWasConfirmed) {
  constexpr int rounds = 6;
  const ServiceProcess keyring;
  const QTemporaryDir state;
  SecretServiceKeychain keychain(std::chrono::seconds(20));
  const auto write = [](int number) {
    return QJsonObject{{"set", "keychain"}, {"username", "ada"}, {"password", QString::number(number)}};
  };
  int number = 1;
  for (int round = 0; round < rounds; ++round) {
    const int confirmed =
        lastConfirmed({"--state", state.path(), "--keychain", "system"}, countingScript(number, write));
    ASSERT_GE(confirmed, number);
    const auto answer = keychain.read({"Brenn Mivra Meetings", "OutlookAccount(Onpremise)"});
    const int kept = QJsonDocument::fromJson(answer.secret).object()["password"].toString().toInt();
    EXPECT_TRUE(kept == confirmed || kept == confirmed + 1) << kept << " instead of " << confirmed;
    number = kept + 1;
  }
}
