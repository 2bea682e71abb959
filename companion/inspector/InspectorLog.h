#pragma once

#include <QAbstractTableModel>
#include <QMutex>
#include <deque>
#include <memory>

#include "companion/inspector/InspectorEvent.h"

// The latest events in the order in which they happened, bounded by number and by bytes; the oldest go first.
// Paused it keeps its rows; new events wait, within the same bounds. Main thread only, but for `record`.
class InspectorLog final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Event = std::shared_ptr<const InspectorEvent>;
  enum Column { TimeColumn, KindColumn, NameColumn, ContentColumn, ColumnCount };
  enum class Flow { Live, Paused };
  static constexpr qsizetype mostEvents = 10'000;
  static constexpr qsizetype mostBytes = 16 * 1024 * 1024;

  using QAbstractTableModel::QAbstractTableModel;

  // Any thread. The event is in the log once the main thread's loop has turned.
  void record(const PluginEvent& recorded);
  void clear();
  void setFlow(Flow flow);
  Flow flow() const { return m_flow; }

  const std::deque<Event>& events() const { return m_kept.events; }
  const Event& eventAt(int row) const { return m_kept.events[static_cast<size_t>(row)]; }
  // One line, columns parted by tabs.
  static QString lineOf(const InspectorEvent& event);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 Q_SIGNALS:
  void waiting(qsizetype count);  // so many events wait for the end of the pause

 private:
  struct Bounded {
    std::deque<Event> events;
    qsizetype bytes = 0;

    void append(Event event);
    qsizetype excess(qsizetype count, qsizetype byteCount) const;  // so many of the first are too many
    void dropFirst(qsizetype count);
  };

  void takeIn();
  void makeRoomFor(const Bounded& fresh);

  Bounded m_kept;
  Flow m_flow = Flow::Live;
  QMutex m_mutex;
  Bounded m_waiting;              // guarded
  bool m_isTakeInQueued = false;  // guarded
};
