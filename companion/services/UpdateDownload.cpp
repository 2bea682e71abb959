#include "companion/services/UpdateDownload.h"

#include <chrono>
#include <utility>

namespace {

using namespace std::chrono_literals;

// The limit in time of a request holds between two pieces; a server that drips would take for ever.
constexpr auto kLongestDownload = 60min;

}  // namespace

UpdateDownload::UpdateDownload(std::unique_ptr<WebFetch> fetch, const QString& folder,
                               const UpdateManifest& manifest)
    : m_manifest(manifest), m_file(folder, manifest), m_fetch(std::move(fetch)) {
  m_patience.setSingleShot(true);
  m_patience.setInterval(kLongestDownload);
  connect(&m_patience, &QTimer::timeout, this, [this] {
    m_fetch->cancel();
    Q_EMIT failed(messageOf(WebTrouble::TooSlow, m_manifest.package.host()));
  });
}

void UpdateDownload::start() {
  m_patience.start();
  m_fetch->start({.address = m_manifest.package,
                  .take = [this](const QByteArray& piece) { return take(piece); },
                  .takenBytes = m_manifest.bytes},
                 [this](const WebAnswer& answer) { end(answer); });
}

void UpdateDownload::stop() {
  m_patience.stop();
  m_fetch->cancel();
}

bool UpdateDownload::take(const QByteArray& piece) {
  if (m_file.written() == 0 && !m_file.open()) return false;
  if (!m_file.write(piece)) return false;
  Q_EMIT progressed(m_file.written(), m_manifest.bytes);
  return true;
}

void UpdateDownload::end(const WebAnswer& answer) {
  m_patience.stop();
  if (!m_file.failure().isEmpty()) return Q_EMIT failed(m_file.failure());
  if (!answer.failure.isEmpty()) return Q_EMIT failed(answer.failure);
  if (m_file.finish()) return Q_EMIT finished(m_file.path());
  Q_EMIT failed(m_file.failure());
}
