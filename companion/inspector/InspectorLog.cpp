#include "companion/inspector/InspectorLog.h"

#include <QMutexLocker>
#include <utility>

namespace {

// Dropping some at a time spares the lists that show the log from moving all their rows at every event.
constexpr qsizetype kRoomEvents = InspectorLog::mostEvents / 40;
constexpr qsizetype kRoomBytes = InspectorLog::mostBytes / 40;

}  // namespace

void InspectorLog::Bounded::append(Event event) {
  bytes += event->bytes();
  events.push_back(std::move(event));
}

void InspectorLog::Bounded::dropTo(qsizetype count, qsizetype byteCount) {
  while (qsizetype(events.size()) > count || bytes > byteCount) {
    bytes -= events.front()->bytes();
    events.pop_front();
  }
}

void InspectorLog::record(const PluginEvent& recorded) {
  InspectorEvent event = InspectorEvent::of(recorded);
  const QMutexLocker lock(&m_mutex);
  event.serial = m_nextSerial++;
  const bool isFirst = m_waiting.events.empty();
  m_waiting.append(std::make_shared<const InspectorEvent>(std::move(event)));
  if (m_waiting.isOver()) m_waiting.dropTo(mostEvents, mostBytes);
  if (isFirst) QMetaObject::invokeMethod(this, &InspectorLog::takeIn, Qt::QueuedConnection);
}

void InspectorLog::clear() {
  {
    const QMutexLocker lock(&m_mutex);
    m_waiting = {};
  }
  m_kept = {};
  Q_EMIT cleared();
}

void InspectorLog::takeIn() {
  Bounded fresh;
  {
    const QMutexLocker lock(&m_mutex);
    fresh = std::exchange(m_waiting, {});
  }
  if (fresh.events.empty()) return;
  const qsizetype count = qsizetype(fresh.events.size());
  if (qsizetype(m_kept.events.size()) + count > mostEvents || m_kept.bytes + fresh.bytes > mostBytes) {
    m_kept.dropTo(qMax(qsizetype{0}, mostEvents - count - kRoomEvents),
                  qMax(qsizetype{0}, mostBytes - fresh.bytes - kRoomBytes));
    const Event& firstKept = m_kept.events.empty() ? fresh.events.front() : m_kept.events.front();
    Q_EMIT dropped(firstKept->serial);
  }
  for (Event& event : fresh.events) m_kept.append(std::move(event));
  Q_EMIT appended(count);
}
