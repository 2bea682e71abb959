#include "tests/world/LiveSession.h"

#include <gtest/gtest.h>

#include "tests/world/Desktop.h"

namespace {

constexpr int kStepMilliseconds = 20'000;

}  // namespace

LiveSession::LiveSession(const QProcessEnvironment& environment)
    : m_process(Desktop::ownedProcess(environment)) {
  m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
  m_process->start(PREFS_SESSION, {"--live", "--plugin", PREFERENCES});
}

LiveSession::~LiveSession() {
  end();
}

int LiveSession::end() {
  if (m_process->state() != QProcess::NotRunning) {
    m_process->closeWriteChannel();
    if (!m_process->waitForFinished(kStepMilliseconds)) m_process->kill();
    m_process->waitForFinished();
  }
  return m_process->exitStatus() == QProcess::NormalExit ? m_process->exitCode() : -1;
}

QStringList LiveSession::play(const QStringList& steps) {
  const QString marker = QStringLiteral(R"({"echo":"played %1"})").arg(++m_marker);
  m_process->write((steps.join(u'\n') + u'\n' + marker + u'\n').toUtf8());
  QStringList lines;
  while (m_process->canReadLine() || m_process->waitForReadyRead(kStepMilliseconds)) {
    if (!m_process->canReadLine()) continue;
    const QString line = QString::fromUtf8(m_process->readLine()).trimmed();
    if (line == marker) return lines;
    lines.append(line);
  }
  ADD_FAILURE() << "not played: " << steps.join(u'\n').toStdString();
  return lines;
}
