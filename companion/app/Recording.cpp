#include "companion/app/Recording.h"

#include <chrono>
#include <utility>

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
      m_host, [this](const QByteArray& line) { return take(line); },
      Recorder::Options{
          .clock = timeSinceStart, .slack = kPauseSlack, .keychain = HostStateWatch::Keychain::ReadOnce});
  Q_EMIT changed(true);
  Q_EMIT noticed(QStringLiteral("Recording to %1. Do what goes wrong, then press Stop recording.").arg(path));
  return true;
}

bool Recording::take(const QByteArray& line) {
  if (m_file->write(line)) return true;
  // The recorder is at work.
  QMetaObject::invokeMethod(this, &Recording::onFailed, Qt::QueuedConnection);
  return false;
}

bool Recording::finish() {
  const auto recorder = std::exchange(m_recorder, nullptr);
  recorder->stop();
  return m_file->finish([&recorder](const QByteArray& line) { return recorder->revised(line); });
}

void Recording::stop() {
  if (!m_recorder) return;
  const bool isFinished = finish();
  Q_EMIT changed(false);
  if (!isFinished) return Q_EMIT noticed(unfinishedText());
  Q_EMIT noticed(
      QStringLiteral("Recorded to %1. Attach it to your report; passwords and tokens are replaced, names and "
                     "addresses are not.")
          .arg(m_file->path()));
}

void Recording::onFailed() {
  if (!m_recorder) return;
  const QString reason = m_file->errorText();
  const bool isFinished = finish();
  Q_EMIT changed(false);
  if (!isFinished) return Q_EMIT noticed(unfinishedText());
  Q_EMIT noticed(
      QStringLiteral("Recording has ended: %1. What came before is in %2. Make room, then record again.")
          .arg(reason, m_file->path()));
}

QString Recording::unfinishedText() const {
  return QStringLiteral(
             "Recorded to %1, but it could not be read once more (%2): a password that was first "
             "typed into a field for something else may be in it. Look before you pass it on.")
      .arg(m_file->path(), m_file->errorText());
}
