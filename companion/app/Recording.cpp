#include "companion/app/Recording.h"

#include <chrono>

namespace {

using namespace std::chrono_literals;

// A timer of the plug-in may be late by this much when the record is played.
constexpr auto kPauseSlack = 20ms;

std::chrono::milliseconds timeSinceStart() {
  using Clock = std::chrono::steady_clock;
  static const auto start = Clock::now();
  return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
}

}  // namespace

bool Recording::start(const QString& path) {
  stop();
  auto file = std::make_unique<RecordFile>();
  if (!file->open(path)) {
    Q_EMIT noticed(QStringLiteral("%1 cannot be written: %2. Choose another place for the record.")
                       .arg(path, file->errorText()));
    return false;
  }
  m_file = std::move(file);
  m_recorder = std::make_unique<Recorder>(
      m_border, [this](const QByteArray& line) { return take(line); },
      Recorder::Options{
          .clock = timeSinceStart, .slack = kPauseSlack, .keychain = HostStateWatch::Keychain::ReadOnce});
  Q_EMIT changed(true);
  Q_EMIT noticed(QStringLiteral("Recording to %1; passwords and tokens are replaced.").arg(path));
  return true;
}

bool Recording::take(const QByteArray& line) {
  if (m_file->write(line)) return true;
  // The recorder is at work.
  QMetaObject::invokeMethod(this, &Recording::onFailed, Qt::QueuedConnection);
  return false;
}

void Recording::stop() {
  if (!m_recorder) return;
  m_recorder.reset();
  Q_EMIT changed(false);
  Q_EMIT noticed(
      QStringLiteral("Recorded to %1. Read it before you pass it on: names and addresses are in it.")
          .arg(m_file->path()));
}

void Recording::onFailed() {
  if (!m_recorder) return;
  m_recorder.reset();
  Q_EMIT changed(false);
  Q_EMIT noticed(
      QStringLiteral("Recording has ended: %1. What came before is in %2. Make room, then record again.")
          .arg(m_file->errorText(), m_file->path()));
}
