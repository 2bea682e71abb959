#include "companion/app/Recording.h"

#include <chrono>

#include "companion/texts/CompanionText.h"

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
    Q_EMIT message(companionText("%1 cannot be written: %2. Choose another place for the record.")
                       .arg(path, file->errorText()));
    return false;
  }
  m_file = std::move(file);
  m_recorder = std::make_unique<Recorder>(
      m_host, [this](const QByteArray& line) { return write(line); },
      Recorder::Options{
          .clock = timeSinceStart, .slack = kPauseSlack, .keychain = HostStateTracker::Keychain::ReadOnce});
  Q_EMIT changed(true);
  Q_EMIT message(companionText("Recording to %1. Do what goes wrong, then press Stop recording.").arg(path));
  return true;
}

bool Recording::write(const QByteArray& line) {
  if (m_file->write(line)) return true;
  // Later, since the recorder is at work.
  const auto stopIfFailed = [this] {
    if (!m_file->errorText().isEmpty()) stop();
  };
  QMetaObject::invokeMethod(this, stopIfFailed, Qt::QueuedConnection);
  return false;
}

void Recording::stop() {
  if (!m_recorder) return;
  m_recorder.reset();
  Q_EMIT changed(false);
  if (!m_file->errorText().isEmpty()) {
    return Q_EMIT message(
        companionText("Recording has ended: %1. What came before is in %2. Make room, then record again.")
            .arg(m_file->errorText(), m_file->path()));
  }
  Q_EMIT message(
      companionText("Recorded to %1. Attach it to your report; passwords and tokens are replaced, names and "
                    "addresses are not.")
          .arg(m_file->path()));
}
