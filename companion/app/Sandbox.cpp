#include "companion/app/Sandbox.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <chrono>

#include "companion/texts/CompanionText.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kStartTime = 20s;
constexpr int kEndMilliseconds = 1000;

}  // namespace

Sandbox::Sandbox() {
  m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  m_startLimit.setSingleShot(true);
  m_startLimit.setInterval(kStartTime);
  connect(&m_startLimit, &QTimer::timeout, this,
          [this] { fail(companionText("The sandbox does not answer.")); });
  connect(&m_process, &QProcess::readyReadStandardOutput, this, &Sandbox::readFirstLine);
  connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
    if (error != QProcess::FailedToStart) return;
    fail(companionText("The sandbox did not start: %1.").arg(m_process.errorString()));
  });
  connect(&m_process, &QProcess::finished, this, [this] { fail(companionText("The sandbox has ended.")); });
}

Sandbox::~Sandbox() {
  m_process.disconnect(this);
  if (m_process.state() == QProcess::NotRunning) return;
  // Closing its input lets it exit by itself; the process object kills it otherwise.
  m_process.closeWriteChannel();
  m_process.waitForFinished(kEndMilliseconds);
}

QString Sandbox::programPath() {
  return QStandardPaths::findExecutable(QStringLiteral("kz-sandbox"),
                                        {QCoreApplication::applicationDirPath()});
}

void Sandbox::start(const QString& path) {
  if (path.isEmpty()) {
    return fail(companionText("The sandbox is not running: kz-sandbox is not beside this program."));
  }
  m_startLimit.start();
  m_process.start(path, {QStringLiteral("--until-input-ends")});
}

void Sandbox::readFirstLine() {
  if (!m_startLimit.isActive() || !m_process.canReadLine()) return;
  m_startLimit.stop();
  const SandboxDescription description = SandboxDescription::fromJson(m_process.readLine());
  if (!description.isEmpty()) return Q_EMIT ready(description);
  fail(companionText("The sandbox plays nothing: the openssl program may be missing."));
}

void Sandbox::fail(const QString& reason) {
  m_startLimit.stop();
  m_process.disconnect(this);
  m_process.closeWriteChannel();
  Q_EMIT failed(reason);
}
