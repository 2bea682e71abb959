#pragma once

#include <QAbstractTableModel>
#include <QMutex>
#include <deque>
#include <memory>

#include "companion/inspector/InspectorEvent.h"

// The latest events in the order in which they happened, bounded by number and by bytes; the oldest go first.
// Paused it keeps its rows, while new events are kept without rows. Main thread only, but for `record`.
class InspectorLog final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using Event = std::shared_ptr<const InspectorEvent>;
  enum Column { TimeColumn, KindColumn, NameColumn, ContentColumn, ColumnCount };
  enum class Flow { Live, Paused };
  static constexpr qsizetype mostEvents = 10'000;
  static constexpr qsizetype mostBytes = 16 * 1024 * 1024;

  using QAbstractTableModel::QAbstractTableModel;

  // Any thread. The event has a row once the main thread's loop has turned.
  void record(const PluginEvent& event);
  void clear();
  void setFlow(Flow flow);
  Flow flow() const { return m_flow; }

  const std::deque<Event>& events() const { return m_rows; }
  const Event& eventAt(int row) const { return m_rows[static_cast<size_t>(row)]; }
  // One line, with tabs between the columns.
  static QString lineOf(const InspectorEvent& event);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 Q_SIGNALS:
  void waiting(qsizetype count);  // so many events wait for the end of the pause

 private:
  void updateRows();

  Flow m_flow = Flow::Live;
  std::deque<Event> m_rows;
  qsizetype m_firstRow = 0;  // the number of events before the first row, since the beginning

  QMutex m_mutex;  // guards what follows
  std::deque<Event> m_latest;
  qsizetype m_firstLatest = 0;  // the number of events that are not kept any more
  qsizetype m_bytes = 0;        // of the latest
  bool m_isUpdateQueued = false;
};
