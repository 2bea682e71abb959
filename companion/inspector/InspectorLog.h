#pragma once

#include <QMutex>
#include <QObject>
#include <deque>
#include <memory>

#include "companion/inspector/InspectorEvent.h"

// The latest events in the order in which they happened, bounded by number and by bytes; the oldest go first.
// Main thread only, but for `record`.
class InspectorLog final : public QObject {
  Q_OBJECT

 public:
  using Event = std::shared_ptr<const InspectorEvent>;
  static constexpr qsizetype mostEvents = 10'000;
  static constexpr qsizetype mostBytes = 16 * 1024 * 1024;

  using QObject::QObject;

  // Any thread. The event is in the log once the main thread's loop has turned.
  void record(const PluginEvent& recorded);
  void clear();

  const std::deque<Event>& events() const { return m_kept.events; }

 Q_SIGNALS:
  void appended(qsizetype count);         // these are the last ones now
  void dropped(quint64 firstKeptSerial);  // what came before it is gone
  void cleared();

 private:
  struct Bounded {
    std::deque<Event> events;
    qsizetype bytes = 0;

    void append(Event event);
    bool isOver() const { return qsizetype(events.size()) > mostEvents || bytes > mostBytes; }
    void dropTo(qsizetype count, qsizetype byteCount);
  };

  void takeIn();

  Bounded m_kept;
  QMutex m_mutex;
  Bounded m_waiting;         // guarded
  quint64 m_nextSerial = 1;  // guarded
};
