#pragma once

#include <QAbstractTableModel>
#include <deque>

#include "companion/inspector/InspectorFilter.h"
#include "companion/inspector/InspectorLog.h"

// The rows of the log that the filter lets through, oldest first. Paused it keeps its rows, also those that
// the log drops, and takes no new ones. Main thread only.
class InspectorModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Column { TimeColumn, KindColumn, NameColumn, ContentColumn, ColumnCount };
  enum class Flow { Live, Paused };

  explicit InspectorModel(InspectorLog* log);  // not owned; must outlive the model

  void setFilter(InspectorFilter filter);
  const InspectorFilter& filter() const { return m_filter; }
  void setFlow(Flow flow);
  Flow flow() const { return m_flow; }

  const std::deque<InspectorLog::Event>& events() const { return m_rows; }
  const InspectorLog::Event& eventAt(int row) const { return m_rows[static_cast<size_t>(row)]; }
  int rowOf(quint64 serial) const;  // -1: not shown
  // The row as one line, columns parted by tabs.
  QString lineAt(int row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

 Q_SIGNALS:
  void missed(qsizetype count);  // so many came since the pause began

 private:
  void append(qsizetype count);
  void dropBefore(quint64 serial);
  void rebuild();
  void forget();

  InspectorLog* m_log;
  InspectorFilter m_filter;
  Flow m_flow = Flow::Live;
  quint64 m_lastSerial = 0;  // that a paused list may show
  qsizetype m_missed = 0;
  std::deque<InspectorLog::Event> m_rows;
};
