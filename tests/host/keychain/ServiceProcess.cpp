#include "tests/host/keychain/ServiceProcess.h"

#include <gtest/gtest.h>

#include <csignal>

#include <QElapsedTimer>

namespace {

constexpr int kStartMilliseconds = 10000;

bool isNameOwned() {
  QProcess ask;
  ask.start("dbus-send",
            {"--session", "--print-reply", "--dest=org.freedesktop.DBus", "/org/freedesktop/DBus",
             "org.freedesktop.DBus.NameHasOwner", "string:org.freedesktop.secrets"});
  ask.waitForFinished();
  return ask.readAllStandardOutput().contains("boolean true");
}

}  // namespace

ServiceProcess::ServiceProcess(const QString& fault) {
  m_process.start(FAKE_SECRET_SERVICE, {fault});
  EXPECT_TRUE(m_process.waitForReadyRead(kStartMilliseconds));
}

ServiceProcess::ServiceProcess(Keyring keyring) {
  QStringList options = {"--foreground", "--components=secrets"};
  if (keyring == Keyring::Unlocked) options.append("--unlock");
  m_process.start("gnome-keyring-daemon", options);
  m_process.write("password");
  m_process.closeWriteChannel();
  QElapsedTimer timer;
  timer.start();
  // Waiting for the process also sends it the password.
  while (!isNameOwned() && timer.elapsed() < kStartMilliseconds) m_process.waitForFinished(20);
}

ServiceProcess::~ServiceProcess() {
  kill();
}

void ServiceProcess::kill() {
  if (m_process.state() == QProcess::NotRunning) return;
  m_process.kill();
  m_process.waitForFinished();
}

void ServiceProcess::pause() const {
  EXPECT_EQ(::kill(static_cast<pid_t>(m_process.processId()), SIGSTOP), 0);
}

void ServiceProcess::resume() const {
  EXPECT_EQ(::kill(static_cast<pid_t>(m_process.processId()), SIGCONT), 0);
}

QByteArray ServiceProcess::said() {
  m_process.waitForReadyRead(50);
  m_said += m_process.readAllStandardOutput();
  return m_said;
}
